// Resolving and name lookup over packages of 1,000 to 100,000 classes whose types name one another.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "gello/foundation/Log.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Globals.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

const String BuiltIns[] = {u"Integer", u"String", u"Real", u"Boolean"};

String ClassName(int i) {
  return u"C" + IntToStr(i);
}

// A package of N classes, made as a reader makes them: each derives from class i/2 and has three
// properties and two methods typed by other classes, found or forward-declared by name, and one
// property of a built-in type (which the package itself does not hold).
struct TBenchModel {
  Ref<TRTTIGlobals> Globals = MakeRef<TRTTIGlobals>();
  Ref<TRTTIPackage> Package = MakeRef<TRTTIPackage>(u"Bench");
  std::vector<String> Names;

  explicit TBenchModel(int N) {
    Globals->AddMember(Package);
    for (int i = 0; i < N; ++i)
      Names.push_back(ClassName(i));
    // Declared first, then defined, as a reader meets forward references.
    std::vector<Ref<IRTTIClass>> Classes;
    for (int i = 0; i < N; ++i)
      Classes.push_back(Type(Names[i]));
    for (int i = 0; i < N; ++i)
      Fill(Classes[i], i, N);
  }
  ~TBenchModel() { Globals->Clear(); }

  Ref<IRTTIClass> Type(const String& Name) { return Package->FindAddClass(Name, Globals.get()); }

  void Fill(const Ref<IRTTIClass>& C, int i, int N) {
    if (i > 0) C->SetAncestor(Type(Names[i / 2]));
    const String Own = u"m" + IntToStr(i) + u"_";
    const int Types[] = {(i * 7 + 1) % N, (i * 13 + 5) % N, (i + 1) % N};
    for (int k = 0; k < 3; ++k)
      C->AddMember(MakeRef<TRTTIProperty>(Own + IntToStr(k), Type(Names[Types[k]])));
    C->AddMember(MakeRef<TRTTIProperty>(Own + u"v", Type(BuiltIns[i % 4])));
    for (int k = 0; k < 2; ++k) {
      auto Params = MakeRef<TRTTIElementList>();
      Params->Add(MakeRef<TRTTIProperty>(u"arg", Type(Names[(i + k + 2) % N])));
      C->AddMember(
          MakeRef<TRTTIMethod>(Own + u"f" + IntToStr(k), Type(Names[(i * 3 + k) % N]), Params));
    }
  }
};

// Each round resolves a model fresh from the reader, so every forward reference is bound again;
// making and freeing the model are not timed.
void BM_Resolve(benchmark::State& State) {
  for (auto _ : State) {
    State.PauseTiming();
    auto Model = std::make_unique<TBenchModel>(static_cast<int>(State.range(0)));
    State.ResumeTiming();
    Model->Package->Resolve(Model->Globals.get());
    State.PauseTiming();
    Model.reset();
    State.ResumeTiming();
  }
  State.SetItemsProcessed(State.iterations() * State.range(0));
}

void BM_LookupEveryClass(benchmark::State& State) {
  TBenchModel Model(static_cast<int>(State.range(0)));
  for (auto _ : State)
    for (const String& Name : Model.Names)
      benchmark::DoNotOptimize(Model.Package->Lookup<IRTTIClass>(Name));
  State.SetItemsProcessed(State.iterations() * State.range(0));
}

BENCHMARK(BM_Resolve)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LookupEveryClass)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  LogMessage = [](const String&) {};  // the resolve timer's lines would swamp the figures
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
