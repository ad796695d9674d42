#!/usr/bin/env bash
# Installs the build into a fresh prefix and uses it as another project would: the files are where
# they belong, a consumer builds through the CMake package and through pkg-config and loads the
# example model, and every installed header compiles on its own.
set -euo pipefail
build=$(realpath "$1")
source_dir=$(realpath "$(dirname "$0")/../..")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(cd "$prefix" && dirname "$(find . -name 'libgello.so.*.*.*')")

for file in "$libdir/libgello.so" "$libdir/libgello.so.0" "$libdir/cmake/gello/gelloConfig.cmake" \
  "$libdir/cmake/gello/gelloConfigVersion.cmake" "$libdir/pkgconfig/gello.pc" bin/gello \
  include/gello/model/Package.h share/man/man1/gello.1 share/bash-completion/completions/gello; do
  [ -e "$prefix/$file" ] || { echo "not installed: $file"; exit 1; }
done
[ -z "$(find "$prefix/include" -path '*/src/*')" ] || { echo "private headers installed"; exit 1; }

expect_classes() {
  local got
  got=$("$@" "$source_dir/examples/clinical-model.xml")
  echo "$got"
  [ "$got" = "classes: 10" ] || { echo "unexpected output from $1"; exit 1; }
}

cmake -S "$source_dir/tests/install/consumer" -B "$work/cmake-build" -G Ninja \
  -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake-build" >/dev/null
expect_classes "$work/cmake-build/consumer"

export PKG_CONFIG_PATH=$prefix/$libdir/pkgconfig
# shellcheck disable=SC2046
g++ -std=c++20 -o "$work/pc-consumer" "$source_dir/tests/install/consumer/main.cpp" \
  $(pkg-config --cflags --libs gello) -Wl,-rpath,"$prefix/$libdir"
expect_classes "$work/pc-consumer"

# Each header alone, with only what pkg-config says it needs.
cd "$prefix/include"
failed=$(find gello -name '*.h' | sort | xargs -P 2 -I{} sh -c \
  'echo "#include \"{}\"" | g++ -std=c++20 -fsyntax-only -x c++ - $(pkg-config --cflags gello) \
     >/dev/null 2>&1 || echo "{}"')
[ -z "$failed" ] || { echo "headers that do not compile alone:"; echo "$failed"; exit 1; }
echo "installed headers: $(find gello -name '*.h' | wc -l), each compiles alone"
