#include "gello/model/NameTable.h"

#include <functional>

#include "../foundation/LinearProbing.h"

namespace gello {
namespace {
std::size_t HashOf(const String& Name) {
  return std::hash<String>()(Name);
}
}  // namespace

std::size_t TNameTable::Locate(const String& Name, std::size_t Hash) const {
  // The slot that holds Name, or the free slot that ends its probe run.
  const std::size_t Mask = FSlots.size() - 1;
  std::size_t i = Hash & Mask;
  while (FSlots[i].Element && (FSlots[i].Hash != Hash || !FSlots[i].Element->IsNamed(Name)))
    i = (i + 1) & Mask;
  return i;
}

IRTTIElement* TNameTable::Find(const String& Name) const {
  if (FCount == 0) return nullptr;
  return FSlots[Locate(Name, HashOf(Name))].Element;
}

IRTTIElement* TNameTable::Put(IRTTIElement* Element) {
  if ((FCount + 1) * 2 > FSlots.size()) Grow();
  const String& Name = Element->GetName();
  const std::size_t Hash = HashOf(Name);
  TSlot& Slot = FSlots[Locate(Name, Hash)];
  IRTTIElement* Displaced = Slot.Element;
  if (!Displaced) ++FCount;
  Slot = TSlot{Hash, Element};
  return Displaced;
}

void TNameTable::Erase(const String& Name) {
  if (FCount == 0) return;
  const std::size_t Mask = FSlots.size() - 1;
  std::size_t Hole = Locate(Name, HashOf(Name));
  if (!FSlots[Hole].Element) return;
  --FCount;
  // Shift later members of the probe run back, so that no run is broken by the hole.
  for (std::size_t j = (Hole + 1) & Mask; FSlots[j].Element; j = (j + 1) & Mask) {
    const std::size_t Home = FSlots[j].Hash & Mask;
    const bool HomeBetween = Hole <= j ? (Hole < Home && Home <= j) : (Hole < Home || Home <= j);
    if (HomeBetween) continue;
    FSlots[Hole] = FSlots[j];
    Hole = j;
  }
  FSlots[Hole] = TSlot{};
}

void TNameTable::Clear() {
  FSlots.clear();
  FCount = 0;
}

void TNameTable::Grow() {
  GrowSlots(FSlots, 8, [](const TSlot& Slot) { return Slot.Element != nullptr; });
}

}  // namespace gello
