# Two commands do everything on a fresh Debian machine: `make demo` and `make test`.
BUILD ?= build
ASAN_BUILD ?= build-asan
JOBS ?= 2
CMAKE_FLAGS ?=
ifeq ($(CI),true)
CMAKE_FLAGS += -DGELLO_WERROR=ON
endif

.PHONY: deps configure build test demo bench package docs test-sanitize fuzz clean

deps:
	scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD) -G Ninja $(CMAKE_FLAGS)

build: configure
	cmake --build $(BUILD) -j $(JOBS)

test: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

# Only the tool and the library it links, not the tests and benchmarks.
demo: configure
	cmake --build $(BUILD) -j $(JOBS) --target gello_tool
	$(BUILD)/tools/gello/gello xml paths examples/patient-record.xml
	$(BUILD)/tools/gello/gello model info examples/clinical-model.xml

# A Debian package of the library, headers, tool, man page and completion, in $(BUILD).
package: build
	cd $(BUILD) && cpack -G DEB

# The API reference from the public headers, in $(BUILD)/docs/html.
docs: deps
	scripts/make-docs.sh $(BUILD)/docs

bench: build
	for b in $(BUILD)/bench/bench_*; do $$b; done

# The whole suite again under AddressSanitizer, LeakSanitizer and UndefinedBehaviorSanitizer.
test-sanitize: deps
	cmake -S . -B $(ASAN_BUILD) -G Ninja -DCMAKE_BUILD_TYPE=Debug -DGELLO_SANITIZE=ON -DGELLO_BENCH=OFF $(CMAKE_FLAGS)
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 ctest --test-dir $(ASAN_BUILD) --output-on-failure -j $(JOBS)

# Builds the fuzz targets with clang's libFuzzer; run one with e.g.
#   build-fuzz/tests/fuzz/fuzz_xml_reader -max_total_time=300 tests/fuzz/corpus/xml_reader
fuzz: deps
	CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DGELLO_FUZZ=ON -DGELLO_SANITIZE=ON -DGELLO_BENCH=OFF
	cmake --build build-fuzz -j $(JOBS)

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) build-fuzz
