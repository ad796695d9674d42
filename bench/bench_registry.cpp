// Integer "+" through its registered slot against the direct interface call (the floor), and
// the evaluator's whole path: FindMethod by argument types, then the slot call.
#include <benchmark/benchmark.h>

#include "gello/expr/Value.h"
#include "gello/foundation/Log.h"
#include "gello/model/ElementList.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/registry/Invoke.h"
#include "gello/registry/RegisteredMethod.h"
#include "gello/registry/Registry.h"

namespace {

using namespace gello;

struct TOperands {
  Ref<IOCLInteger> Left = MakeRef<TOCLInteger>(2);
  Ref<IOCLInteger> Right = MakeRef<TOCLInteger>(3);
  Ref<IRTTIElementList> ArgTypes = MakeRef<TRTTIElementList>();
  TOperands() { ArgTypes->Add(MakeRef<TRTTIValue>(OCLSystemClasses().Integer)); }
};

void BM_IntegerAdd_Direct(benchmark::State& State) {
  TOperands Op;
  for (auto _ : State) {
    Ref<IOCLInteger> Sum = Op.Left->_ADD_(Op.Right.get());
    benchmark::DoNotOptimize(Sum.get());
  }
}
BENCHMARK(BM_IntegerAdd_Direct);

void BM_IntegerAdd_Slot(benchmark::State& State) {
  TOperands Op;
  Ref<IRTTIMethod> Plus = OCLSystemClasses().Integer->FindMethod(u"+", Op.ArgTypes.get());
  const TMethodInfo* Info = GetMethodInfo(Plus.get());
  IOCLAny* Args[] = {Op.Right.get()};
  for (auto _ : State) {
    Ref<IOCLAny> Sum = ExecuteMethod(Op.Left.get(), Args, Info);
    benchmark::DoNotOptimize(Sum.get());
  }
}
BENCHMARK(BM_IntegerAdd_Slot);

void BM_IntegerAdd_FindAndSlot(benchmark::State& State) {
  TOperands Op;
  IOCLAny* Args[] = {Op.Right.get()};
  for (auto _ : State) {
    Ref<IRTTIMethod> Plus = Op.Left->GetInstanceType()->FindMethod(u"+", Op.ArgTypes.get());
    Ref<IOCLAny> Sum = ExecuteMethod(Op.Left.get(), Args, GetMethodInfo(Plus.get()));
    benchmark::DoNotOptimize(Sum.get());
  }
}
BENCHMARK(BM_IntegerAdd_FindAndSlot);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  gello::RegisterInterfaces();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  gello::TLogCapture Quiet;  // the closing dump is not part of the report
  gello::FinalizeOCLRegistry();
  return 0;
}
