#pragma once
// A non-owning reference to a callable: what a visitor parameter needs, without std::function's
// copy of the callable or its allocation.
#include <memory>
#include <type_traits>
#include <utility>

namespace gello {

template <class Signature>
class TFunctionRef;

/// Calls the callable it was made from, which must outlive it (pass a lambda straight in).
template <class R, class... A>
class TFunctionRef<R(A...)> {
 public:
  template <class F, class = std::enable_if_t<!std::is_same_v<std::decay_t<F>, TFunctionRef> &&
                                              std::is_invocable_r_v<R, F&, A...>>>
  TFunctionRef(F&& Callable) noexcept  // NOLINT: converts implicitly, as a lambda argument must
      : FCallable(const_cast<void*>(static_cast<const void*>(std::addressof(Callable)))),
        FCall([](void* C, A... Args) -> R {
          return (*static_cast<std::remove_reference_t<F>*>(C))(std::forward<A>(Args)...);
        }) {}

  R operator()(A... Args) const { return FCall(FCallable, std::forward<A>(Args)...); }

 private:
  void* FCallable;
  R (*FCall)(void*, A...);
};

}  // namespace gello
