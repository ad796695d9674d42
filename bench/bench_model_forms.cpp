// The native model form on a generated model of about 50 MB: saving it, loading it whole
// (parse, elements, class lookups), and pugixml's bare parse of the same file, which is the
// floor a load cannot go below; a parse followed by one visit of every attribute shows the
// share of a load that reading the parsed tree costs.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>
#include <pugixml.hpp>

#include <algorithm>
#include <climits>
#include <filesystem>
#include <string>
#include <vector>

#include "gello/expr/ControlNodes.h"
#include "gello/expr/Literals.h"
#include "gello/expr/Navigation.h"
#include "gello/interchange/PackageFiles.h"
#include "gello/interchange/XMLDocument.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Globals.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

constexpr int ClassCount = 13500;

const String BuiltIns[] = {u"Integer", u"String", u"Real", u"Boolean"};

String ClassName(int i) {
  return u"Class" + IntToStr(i);
}

// if self.a > n then self.b else self.c->select(x | 2) endif, typed by other classes.
Ref<IRTTIValue> Body(IRTTIGlobals& Globals, const Ref<IRTTIClass>& Type, int Seed) {
  auto Integer = Globals.Get_Integer();
  auto Args = [&](std::int64_t N) {
    auto List = MakeRef<TRTTIElementList>();
    List->Add(MakeRef<TRTTIIntegerLiteral>(Integer, N));
    return List;
  };
  auto Test = MakeRef<TRTTIMethodCall>(u">", Globals.Get_Boolean(),
                                       MakeRef<TRTTIPropertyRef>(u"a", Integer, nullptr),
                                       Args(Seed % 100), nullptr);
  auto Iterator = MakeRef<TRTTIProperty>(u"x", Type);
  auto Select = MakeRef<TRTTICollectionMethod>(
      u"select", Type, MakeRef<TRTTIPropertyRef>(u"c", Type, nullptr), Iterator, nullptr, Args(2));
  return MakeRef<TRTTIConditional>(Type, Test, MakeRef<TRTTIPropertyRef>(u"b", Type, nullptr),
                                   Select);
}

// ClassCount classes, each deriving from an earlier one, with eight properties and three
// methods whose bodies are small expression trees. Member names are unique along the ancestor
// chain, which a class requires.
Ref<TRTTIPackage> Model(TRTTIGlobals& Globals) {
  auto Package = MakeRef<TRTTIPackage>(u"Generated");
  Globals.AddMember(Package);
  for (int i = 0; i < ClassCount; ++i) {
    const String Own = u"c" + IntToStr(i) + u"_";
    auto Type = [&](int k) { return Package->FindAddClass(ClassName(k), &Globals); };
    Ref<IRTTIClass> C = Type(i);
    if (i > 0) C->SetAncestor(Type(i / 2));
    C->SetAnnotation(u"Generated class number " + IntToStr(i));
    for (int k = 0; k < 8; ++k) {
      const Ref<IRTTIClass> PropertyType =
          k % 2 ? Type((i * 7 + k) % ClassCount) : Globals.FindClass(BuiltIns[k / 2]);
      C->AddMember(MakeRef<TRTTIProperty>(Own + u"p" + IntToStr(k), PropertyType));
    }
    for (int k = 0; k < 3; ++k) {
      auto Params = MakeRef<TRTTIElementList>();
      Params->Add(MakeRef<TRTTIProperty>(u"arg", Type((i + k + 1) % ClassCount)));
      auto Method = MakeRef<TRTTIMethod>(Own + u"f" + IntToStr(k), Type(i), Params);
      Method->SetResultValue(Body(Globals, Type((i + k) % ClassCount), i + k));
      C->AddMember(Method);
    }
  }
  return Package;
}

// Written once for the loading benchmarks, removed at exit.
struct TModelFile {
  std::filesystem::path Path =
      std::filesystem::temp_directory_path() / ("gello-bench-model-" + std::to_string(getpid()));
  TModelFile() {
    auto Globals = MakeRef<TRTTIGlobals>();
    SaveToFile(*Model(*Globals), Path.u16string());
    Globals->Clear();
  }
  ~TModelFile() { std::filesystem::remove(Path); }
};

const TModelFile& File() {
  static const TModelFile Instance;
  return Instance;
}

void BM_Save(benchmark::State& State) {
  auto Globals = MakeRef<TRTTIGlobals>();
  Ref<TRTTIPackage> Package = Model(*Globals);
  const std::filesystem::path Path = File().Path.string() + ".save";
  for (auto _ : State)
    SaveToFile(*Package, Path.u16string());
  State.counters["MB"] = static_cast<double>(std::filesystem::file_size(Path)) / 1e6;
  std::filesystem::remove(Path);
  Globals->Clear();
}

void BM_Load(benchmark::State& State) {
  const String Path = File().Path.u16string();
  for (auto _ : State) {
    auto Globals = MakeRef<TRTTIGlobals>();
    auto Package = MakeRef<TRTTIPackage>(String());
    LoadFromFile(*Package, Path, Globals.get());
    // A load is not done until what it made is freed again.
    Package->Clear();
    Globals->Clear();
  }
}

void BM_BareParse(benchmark::State& State) {
  const std::string Path = File().Path.string();
  for (auto _ : State) {
    pugi::xml_document Document;
    benchmark::DoNotOptimize(Document.load_file(Path.c_str()));
    State.PauseTiming();
    Document.reset();
    State.ResumeTiming();
  }
}

// The document alone, as a load reads it: the share of a load that is not its elements.
void BM_LoadDocument(benchmark::State& State) {
  const String Path = File().Path.u16string();
  for (auto _ : State) {
    pugi::xml_document Document;
    LoadXMLDocument(Document, Path);
    State.PauseTiming();
    Document.reset();
    State.ResumeTiming();
  }
}

// Everything a reader of the parsed tree pays before it builds anything: the parse, then one
// pass over every node and each of its attributes' names and values.
std::size_t Visit(pugi::xml_node Node) {
  std::size_t Seen = 0;
  for (pugi::xml_node Child = Node.first_child(); Child; Child = Child.next_sibling()) {
    for (pugi::xml_attribute Attribute = Child.first_attribute(); Attribute;
         Attribute = Attribute.next_attribute())
      Seen += static_cast<unsigned char>(Attribute.name()[0]) +
              static_cast<unsigned char>(Attribute.value()[0]);
    Seen += Visit(Child);
  }
  return Seen;
}

void BM_ParseAndVisit(benchmark::State& State) {
  const std::string Path = File().Path.string();
  for (auto _ : State) {
    pugi::xml_document Document;
    Document.load_file(Path.c_str());
    benchmark::DoNotOptimize(Visit(Document));
    State.PauseTiming();
    Document.reset();
    State.ResumeTiming();
  }
}

// The machine this runs on is shared: a load's best time is the steadiest figure beside the median.
double Fastest(const std::vector<double>& Times) {
  return *std::min_element(Times.begin(), Times.end());
}

// Each of the load's figures: one load a repetition, five repetitions, median and best.
void RepeatedTimings(benchmark::internal::Benchmark* Benchmark) {
  Benchmark->Unit(benchmark::kMillisecond)
      ->Iterations(1)
      ->Repetitions(5)
      ->ComputeStatistics("min", Fastest);
}

}  // namespace

BENCHMARK(BM_Save)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3);
BENCHMARK(BM_Load)->Apply(RepeatedTimings);
BENCHMARK(BM_LoadDocument)->Apply(RepeatedTimings);
BENCHMARK(BM_ParseAndVisit)->Apply(RepeatedTimings);
BENCHMARK(BM_BareParse)->Apply(RepeatedTimings);

// Fresh pages from the kernel cost more than parsing on a virtual machine, and whether a run gets
// them depends on what the run before it gave back. The heap keeps what it gets, so every figure
// is the work itself.
int main(int argc, char** argv) {
  mallopt(M_TRIM_THRESHOLD, INT_MAX);
  mallopt(M_MMAP_THRESHOLD, INT_MAX);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
