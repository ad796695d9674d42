// Collection operations on 10,000 and 100,000 Integers: membership is hashed and successive
// versions share storage, so whole-collection operations, N membership questions and a build-up
// by N includings grow linearly with N. A build-up whose receiver is not the newest version of
// its storage copies at each step instead.
#include <benchmark/benchmark.h>

#include "gello/ocl/Bag.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/Set.h"

namespace {

using namespace gello;

// The Integers From .. From + Count - 1, in that order.
template <class C>
Ref<C> Range(std::int64_t From, std::int64_t Count) {
  auto Result = MakeRef<C>();
  for (std::int64_t i = 0; i < Count; ++i)
    Result->Add(MakeRef<TOCLInteger>(From + i));
  return Result;
}

std::vector<Ref<IOCLInteger>> Probes(std::int64_t Count) {
  std::vector<Ref<IOCLInteger>> Result;
  for (std::int64_t i = 0; i < Count; ++i)
    Result.push_back(MakeRef<TOCLInteger>(i * 2));
  return Result;
}

// A collection built up from Empty by N Steps, each on the previous result: every result shares
// its receiver's storage and appends in place.
template <class I>
void BuildUp(benchmark::State& State, const Ref<I>& Empty, Ref<I> (I::*Step)(IOCLAny*) const) {
  std::vector<Ref<IOCLInteger>> Elements = Probes(State.range(0));
  for (auto _ : State) {
    Ref<I> Built = Empty;
    for (const auto& Element : Elements)
      Built = (Built.get()->*Step)(Element.get());
    benchmark::DoNotOptimize(Built.get());
  }
}

// The same, but each step first makes a side version from the receiver, so the receiver of the
// next step is no longer the newest version of its storage and cannot append in place.
template <class I>
void BuildUpFromOlder(benchmark::State& State, const Ref<I>& Empty,
                      Ref<I> (I::*Step)(IOCLAny*) const) {
  std::vector<Ref<IOCLInteger>> Elements = Probes(State.range(0));
  const Ref<IOCLInteger> Side = MakeRef<TOCLInteger>(-1);
  for (auto _ : State) {
    Ref<I> Built = Empty;
    for (const auto& Element : Elements) {
      benchmark::DoNotOptimize((Built.get()->*Step)(Side.get()).get());
      Built = (Built.get()->*Step)(Element.get());
    }
    benchmark::DoNotOptimize(Built.get());
  }
}

void BM_SetIncludingFromOlder(benchmark::State& State) {
  BuildUpFromOlder<IOCLSet>(State, MakeRef<TOCLSet>(), &IOCLSet::including);
}
BENCHMARK(BM_SetIncludingFromOlder)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_SequenceAppendFromOlder(benchmark::State& State) {
  BuildUpFromOlder<IOCLSequence>(State, MakeRef<TOCLSequence>(), &IOCLSequence::append);
}
BENCHMARK(BM_SequenceAppendFromOlder)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

void BM_SetIncluding(benchmark::State& State) {
  BuildUp<IOCLSet>(State, MakeRef<TOCLSet>(), &IOCLSet::including);
}
BENCHMARK(BM_SetIncluding)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SequenceAppend(benchmark::State& State) {
  BuildUp<IOCLSequence>(State, MakeRef<TOCLSequence>(), &IOCLSequence::append);
}
BENCHMARK(BM_SequenceAppend)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SetUnion(benchmark::State& State) {
  auto A = Range<TOCLSet>(0, State.range(0));
  auto B = Range<TOCLSet>(State.range(0) / 2, State.range(0));
  for (auto _ : State)
    benchmark::DoNotOptimize(A->union_(static_cast<IOCLSet*>(B.get())).get());
}
BENCHMARK(BM_SetUnion)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SetIntersection(benchmark::State& State) {
  auto A = Range<TOCLSet>(0, State.range(0));
  auto B = Range<TOCLSet>(State.range(0) / 2, State.range(0));
  for (auto _ : State)
    benchmark::DoNotOptimize(A->intersection(static_cast<IOCLSet*>(B.get())).get());
}
BENCHMARK(BM_SetIntersection)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SetMinus(benchmark::State& State) {
  auto A = Range<TOCLSet>(0, State.range(0));
  auto B = Range<TOCLSet>(State.range(0) / 2, State.range(0));
  for (auto _ : State)
    benchmark::DoNotOptimize(A->_SUBTRACT_(B.get()).get());
}
BENCHMARK(BM_SetMinus)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SetIncludes(benchmark::State& State) {
  // N questions, half of them hits.
  auto S = Range<TOCLSet>(0, State.range(0));
  auto Asked = Probes(State.range(0));
  for (auto _ : State)
    for (const auto& Probe : Asked)
      benchmark::DoNotOptimize(S->includes(Probe.get()).get());
}
BENCHMARK(BM_SetIncludes)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SetIncludesAll(benchmark::State& State) {
  auto S = Range<TOCLSet>(0, State.range(0));
  auto Half = Range<TOCLSequence>(State.range(0) / 2, State.range(0) / 2);
  for (auto _ : State)
    benchmark::DoNotOptimize(S->includesAll(Half.get()).get());
}
BENCHMARK(BM_SetIncludesAll)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_BagCount(benchmark::State& State) {
  // N questions on a Bag that holds every value twice.
  auto B = Range<TOCLBag>(0, State.range(0) / 2);
  B->AddAll(Range<TOCLBag>(0, State.range(0) / 2).get());
  auto Asked = Probes(State.range(0));
  for (auto _ : State)
    for (const auto& Probe : Asked)
      benchmark::DoNotOptimize(B->_count_(Probe.get()).get());
}
BENCHMARK(BM_BagCount)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SequenceExcluding(benchmark::State& State) {
  auto S = Range<TOCLSequence>(0, State.range(0));
  auto Gone = MakeRef<TOCLInteger>(State.range(0) / 2);
  for (auto _ : State)
    benchmark::DoNotOptimize(S->excluding(Gone.get()).get());
}
BENCHMARK(BM_SequenceExcluding)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

void BM_SequenceIndexOf(benchmark::State& State) {
  // N questions, half of them hits.
  auto S = Range<TOCLSequence>(0, State.range(0));
  auto Asked = Probes(State.range(0));
  for (auto _ : State)
    for (const auto& Probe : Asked)
      benchmark::DoNotOptimize(S->indexOf(Probe.get()).get());
}
BENCHMARK(BM_SequenceIndexOf)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
