// Integer "+" through its registered slot against two floors: the direct interface call, which
// allocates its result as the slot call does, and the bare addition, which allocates nothing; and
// the evaluator's whole path: FindMethod by argument types, then the slot call. Each reports the
// heap allocations it makes per call.
#include <benchmark/benchmark.h>

#include "gello/expr/Value.h"
#include "gello/foundation/Log.h"
#include "gello/model/ElementList.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/registry/Invoke.h"
#include "gello/registry/RegisteredMethod.h"
#include "gello/registry/Registry.h"
#include "support/AllocationCount.h"

namespace {

using namespace gello;
using bench::AllocationsSoFar;
using bench::CountAllocations;

struct TOperands {
  Ref<IOCLInteger> Left = MakeRef<TOCLInteger>(2);
  Ref<IOCLInteger> Right = MakeRef<TOCLInteger>(3);
  Ref<IRTTIElementList> ArgTypes = MakeRef<TRTTIElementList>();
  TOperands() { ArgTypes->Add(MakeRef<TRTTIValue>(OCLSystemClasses().Integer)); }
};

void BM_IntegerAdd_Bare(benchmark::State& State) {
  TOperands Op;
  const long Start = AllocationsSoFar();
  for (auto _ : State) {
    std::int64_t Sum = Op.Left->GetasInt64() + Op.Right->GetasInt64();
    benchmark::DoNotOptimize(Sum);
  }
  CountAllocations(State, Start);
}
BENCHMARK(BM_IntegerAdd_Bare);

void BM_IntegerAdd_Direct(benchmark::State& State) {
  TOperands Op;
  const long Start = AllocationsSoFar();
  for (auto _ : State) {
    Ref<IOCLInteger> Sum = Op.Left->_ADD_(Op.Right.get());
    benchmark::DoNotOptimize(Sum.get());
  }
  CountAllocations(State, Start);
}
BENCHMARK(BM_IntegerAdd_Direct);

void BM_IntegerAdd_Slot(benchmark::State& State) {
  TOperands Op;
  Ref<IRTTIMethod> Plus = OCLSystemClasses().Integer->FindMethod(u"+", Op.ArgTypes.get());
  const TMethodInfo* Info = GetMethodInfo(Plus.get());
  IOCLAny* Args[] = {Op.Right.get()};
  const long Start = AllocationsSoFar();
  for (auto _ : State) {
    Ref<IOCLAny> Sum = ExecuteMethod(Op.Left.get(), Args, Info);
    benchmark::DoNotOptimize(Sum.get());
  }
  CountAllocations(State, Start);
}
BENCHMARK(BM_IntegerAdd_Slot);

void BM_IntegerAdd_FindAndSlot(benchmark::State& State) {
  TOperands Op;
  IOCLAny* Args[] = {Op.Right.get()};
  const String Plus = u"+";
  const long Start = AllocationsSoFar();
  for (auto _ : State) {
    Ref<IRTTIMethod> Method = Op.Left->GetInstanceType()->FindMethod(Plus, Op.ArgTypes.get());
    Ref<IOCLAny> Sum = ExecuteMethod(Op.Left.get(), Args, GetMethodInfo(Method.get()));
    benchmark::DoNotOptimize(Sum.get());
  }
  CountAllocations(State, Start);
}

void BM_FindMethod(benchmark::State& State) {
  TOperands Op;
  const Ref<IRTTIClass> Integer = OCLSystemClasses().Integer;
  const String Plus = u"+";
  const long Start = AllocationsSoFar();
  for (auto _ : State) {
    Ref<IRTTIMethod> Method = Integer->FindMethod(Plus, Op.ArgTypes.get());
    benchmark::DoNotOptimize(Method.get());
  }
  CountAllocations(State, Start);
}
BENCHMARK(BM_FindMethod);
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
