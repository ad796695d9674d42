// OCL value arithmetic against the same arithmetic on bare long double, with the heap
// allocations each operation costs counted (operator new is replaced in this program).
#include <benchmark/benchmark.h>

#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "support/AllocationCount.h"

namespace {

using namespace gello;
using bench::AllocationsSoFar;
using bench::CountAllocations;

void BM_IntegerAdd_Floor(benchmark::State& State) {
  long double Sum = 0, One = 1;
  long Before = AllocationsSoFar();
  for (auto _ : State) {
    benchmark::DoNotOptimize(One);
    Sum = Sum + One;
    benchmark::DoNotOptimize(Sum);
  }
  CountAllocations(State, Before);
}
BENCHMARK(BM_IntegerAdd_Floor);

void BM_IntegerAdd_Values(benchmark::State& State) {
  Ref<IOCLInteger> Sum = MakeRef<TOCLInteger>(0);
  Ref<IOCLInteger> One = MakeRef<TOCLInteger>(1);
  long Before = AllocationsSoFar();
  for (auto _ : State) {
    Sum = Sum->_ADD_(One.get());
    benchmark::DoNotOptimize(Sum.get());
  }
  CountAllocations(State, Before);
}
BENCHMARK(BM_IntegerAdd_Values);

void BM_RealMultiply_Floor(benchmark::State& State) {
  long double Product = 1, Factor = 1.0000001L;
  long Before = AllocationsSoFar();
  for (auto _ : State) {
    benchmark::DoNotOptimize(Factor);
    Product = Product * Factor;
    benchmark::DoNotOptimize(Product);
  }
  CountAllocations(State, Before);
}
BENCHMARK(BM_RealMultiply_Floor);

void BM_RealMultiply_Values(benchmark::State& State) {
  Ref<IOCLReal> Product = MakeRef<TOCLReal>(1);
  Ref<IOCLReal> Factor = MakeRef<TOCLReal>(1.0000001L);
  long Before = AllocationsSoFar();
  for (auto _ : State) {
    Product = Product->_MULTIPLY_(Factor.get());
    benchmark::DoNotOptimize(Product.get());
  }
  CountAllocations(State, Before);
}
BENCHMARK(BM_RealMultiply_Values);

void BM_BooleanAndChain(benchmark::State& State) {
  Ref<IOCLBoolean> Result = TOCLBoolean::BooleanValue(true);
  Ref<IOCLBoolean> Unknown = TOCLBoolean::BooleanValue(rtti_unknown);
  Ref<IOCLBoolean> True = TOCLBoolean::BooleanValue(true);
  long Before = AllocationsSoFar();
  for (auto _ : State) {
    Result = Result->_AND_(True.get())->_AND_(Unknown.get())->_OR_(True.get());
    benchmark::DoNotOptimize(Result.get());
  }
  CountAllocations(State, Before);
}
BENCHMARK(BM_BooleanAndChain);

}  // namespace

BENCHMARK_MAIN();
