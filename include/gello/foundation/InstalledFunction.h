#pragma once
// A function that a higher layer of the library installs when it loads, for a lower layer to
// call without depending on it.
#include <atomic>

namespace gello {

/// One installable function pointer; empty until installed. Safe to read from any thread.
template <class Fn>
class TInstalledFunction {
 public:
  void Install(Fn* Function) noexcept { FFunction.store(Function, std::memory_order_release); }
  Fn* Get() const noexcept { return FFunction.load(std::memory_order_acquire); }

 private:
  std::atomic<Fn*> FFunction{nullptr};
};

}  // namespace gello
