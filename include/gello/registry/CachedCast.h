#pragma once
// A cast between interfaces that remembers, per dynamic type, where the target lies.
//
// Interfaces inherit each other and RefCounted virtually, so a cast from one to another needs
// dynamic_cast, which searches the class hierarchy every time. For a given most-derived class the
// distance between the two subobjects never changes: the first cast of each class is searched
// and its offset kept; later casts of that class are one pointer comparison and one addition.
#include <atomic>
#include <cstddef>
#include <typeinfo>

namespace gello {

template <class To, class From>
To* CachedCast(From* Object) noexcept {
  // Entries are never freed: one per dynamic type that was ever cast, reachable from Head.
  struct TEntry {
    const std::type_info* Type;
    std::ptrdiff_t Offset;
    const TEntry* Next;
  };
  static std::atomic<const TEntry*> Head{nullptr};
  if (!Object) return nullptr;
  const std::type_info* Type = &typeid(*Object);
  for (const TEntry* Entry = Head.load(std::memory_order_acquire); Entry; Entry = Entry->Next)
    if (Entry->Type == Type)
      return reinterpret_cast<To*>(reinterpret_cast<char*>(Object) + Entry->Offset);
  To* Target = dynamic_cast<To*>(Object);
  if (!Target) return nullptr;
  auto* Entry = new TEntry{Type, reinterpret_cast<char*>(Target) - reinterpret_cast<char*>(Object),
                           Head.load(std::memory_order_relaxed)};
  while (!Head.compare_exchange_weak(Entry->Next, Entry, std::memory_order_release,
                                     std::memory_order_relaxed)) {
  }
  return Target;
}

}  // namespace gello
