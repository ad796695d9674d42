#include "AllocationCount.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> Allocations{0};
}  // namespace

// The replaced operators pair malloc with free themselves; GCC cannot see that through inlining.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif

void* operator new(std::size_t Size) {
  Allocations.fetch_add(1, std::memory_order_relaxed);
  if (void* P = std::malloc(Size ? Size : 1)) return P;
  throw std::bad_alloc();
}
void operator delete(void* P) noexcept {
  std::free(P);
}
void operator delete(void* P, std::size_t) noexcept {
  std::free(P);
}

long gello::bench::AllocationsSoFar() noexcept {
  return Allocations.load(std::memory_order_relaxed);
}
