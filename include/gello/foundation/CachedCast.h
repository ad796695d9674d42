#pragma once
// A cast between interfaces that remembers, per vtable, where the target lies.
//
// Interfaces inherit each other and RefCounted virtually, so a cast from one to another needs
// dynamic_cast, which searches the class hierarchy every time. A polymorphic subobject's vtable
// pointer fixes the layout around it: one vtable per class and subobject, with separate ones
// while a base is being constructed or destroyed. So the first cast through each vtable is
// searched and its outcome kept (an offset, or that there is none); later casts through that
// vtable are a few pointer comparisons and one addition.
#include <atomic>
#include <cstddef>
#include <type_traits>

namespace gello {

template <class To, class From>
To* CachedCast(From* Object) noexcept {
  if constexpr (std::is_convertible_v<From*, To*>) {
    return Object;
  } else {
    static_assert(std::is_polymorphic_v<From>);
    // Entries are never freed: one per vtable ever cast through, reachable from Head.
    struct TEntry {
      const void* VTable;
      bool Found;
      std::ptrdiff_t Offset;
      const TEntry* Next;
    };
    static std::atomic<const TEntry*> Head{nullptr};
    if (!Object) return nullptr;
    const void* VTable = *reinterpret_cast<const void* const*>(Object);
    char* Base = reinterpret_cast<char*>(Object);
    for (const TEntry* Entry = Head.load(std::memory_order_acquire); Entry; Entry = Entry->Next)
      if (Entry->VTable == VTable)
        return Entry->Found ? reinterpret_cast<To*>(Base + Entry->Offset) : nullptr;
    To* Target = dynamic_cast<To*>(Object);
    auto* Entry =
        new TEntry{VTable, Target != nullptr, Target ? reinterpret_cast<char*>(Target) - Base : 0,
                   Head.load(std::memory_order_relaxed)};
    while (!Head.compare_exchange_weak(Entry->Next, Entry, std::memory_order_release,
                                       std::memory_order_relaxed)) {
    }
    return Target;
  }
}

/// The same through a pointer to const.
template <class To, class From>
const To* CachedCast(const From* Object) noexcept {
  return CachedCast<To>(const_cast<From*>(Object));
}

}  // namespace gello
