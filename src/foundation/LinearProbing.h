#pragma once
// Growing the slot arrays of open-addressed tables: power-of-two sizes, linear probing, each slot
// keeping the hash of what it holds so that nothing is hashed again.
#include <cstddef>
#include <utility>
#include <vector>

namespace gello {

/// Doubles Slots (or makes First of them) and files every held slot again; Held tells a held
/// slot from a free one.
template <class TSlot, class THeld>
void GrowSlots(std::vector<TSlot>& Slots, std::size_t First, THeld Held) {
  std::vector<TSlot> Old = std::move(Slots);
  Slots.assign(Old.empty() ? First : Old.size() * 2, TSlot{});
  const std::size_t Mask = Slots.size() - 1;
  for (TSlot& Slot : Old) {
    if (!Held(Slot)) continue;
    std::size_t i = Slot.Hash & Mask;
    while (Held(Slots[i]))
      i = (i + 1) & Mask;
    Slots[i] = std::move(Slot);
  }
}

}  // namespace gello
