#pragma once
// Intrusive, atomic reference counting for every object that crosses an interface.
//
// An object is born with a count of one that belongs to its creator: MakeRef adopts it. A
// constructor may therefore hand out `this` (and have it released) without the object dying.
#include <atomic>
#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>
#include "gello/foundation/Export.h"

#include "gello/foundation/CachedCast.h"

namespace gello {

/// Root of every interface; inherit it virtually so an object has exactly one count.
class GELLO_API RefCounted {
 public:
  void AddRef() const noexcept { FRefCount.fetch_add(1, std::memory_order_relaxed); }
  void Release() const noexcept {
    if (FRefCount.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }
  /// The current count (for diagnostics and tests).
  int GetRefCount() const noexcept { return FRefCount.load(std::memory_order_relaxed); }

 protected:
  RefCounted() noexcept = default;
  // A copy is a new object: it never takes over the original's count.
  RefCounted(const RefCounted&) noexcept {}
  RefCounted& operator=(const RefCounted&) noexcept { return *this; }
  virtual ~RefCounted() = default;

 private:
  mutable std::atomic<int> FRefCount{1};
};

/// Holds a counted reference to T (an interface or a class).
template <class T>
class Ref {
 public:
  Ref() noexcept = default;
  Ref(std::nullptr_t) noexcept {}
  /// Takes a new reference to Ptr.
  Ref(T* Ptr) noexcept : FPtr(Ptr) {
    if (FPtr) FPtr->AddRef();
  }
  Ref(const Ref& Other) noexcept : Ref(Other.FPtr) {}
  Ref(Ref&& Other) noexcept : FPtr(std::exchange(Other.FPtr, nullptr)) {}
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  Ref(const Ref<U>& Other) noexcept : Ref(Other.get()) {}
  template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
  Ref(Ref<U>&& Other) noexcept : FPtr(Other.Detach()) {}
  ~Ref() {
    if (FPtr) FPtr->Release();
  }

  Ref& operator=(Ref Other) noexcept {
    std::swap(FPtr, Other.FPtr);
    return *this;
  }

  /// Wraps a pointer whose reference the caller hands over (no AddRef).
  static Ref Adopt(T* Ptr) noexcept {
    Ref R;
    R.FPtr = Ptr;
    return R;
  }
  /// Gives up the reference without releasing it.
  T* Detach() noexcept { return std::exchange(FPtr, nullptr); }

  T* get() const noexcept { return FPtr; }
  T* operator->() const noexcept { return FPtr; }
  T& operator*() const noexcept { return *FPtr; }
  explicit operator bool() const noexcept { return FPtr != nullptr; }

  template <class U>
  friend bool operator==(const Ref& A, const Ref<U>& B) noexcept {
    return A.get() == B.get();
  }
  friend bool operator==(const Ref& A, std::nullptr_t) noexcept { return A.FPtr == nullptr; }

 private:
  T* FPtr = nullptr;
};

/// Creates a T and adopts the reference it was born with.
template <class T, class... Args>
Ref<T> MakeRef(Args&&... A) {
  return Ref<T>::Adopt(new T(std::forward<Args>(A)...));
}

/// The same object seen through another interface, or empty when it does not support it.
template <class To, class From>
Ref<To> DynCast(const Ref<From>& R) noexcept {
  return Ref<To>(CachedCast<To>(R.get()));
}
template <class To, class From>
Ref<To> DynCast(From* P) noexcept {
  return Ref<To>(CachedCast<To>(P));
}

}  // namespace gello

namespace std {

/// Hashes a Ref by the object it points at, as its equality compares.
template <class T>
struct hash<gello::Ref<T>> {
  std::size_t operator()(const gello::Ref<T>& R) const noexcept { return std::hash<T*>()(R.get()); }
};

}  // namespace std
