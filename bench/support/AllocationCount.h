#pragma once
// Heap allocations counted by a replaced operator new, for benchmarks that report them.
#include <benchmark/benchmark.h>

namespace gello::bench {

/// Allocations made in this process so far.
long AllocationsSoFar() noexcept;

/// Reports, as "allocs/op", the allocations made since Before per iteration of State.
inline void CountAllocations(benchmark::State& State, long Before) {
  State.counters["allocs/op"] = benchmark::Counter(static_cast<double>(AllocationsSoFar() - Before),
                                                   benchmark::Counter::kAvgIterations);
}

}  // namespace gello::bench
