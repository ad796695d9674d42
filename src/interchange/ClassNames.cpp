#include "ClassNames.h"

#include <functional>

#include "../foundation/LinearProbing.h"
#include "gello/foundation/Exceptions.h"

namespace gello::forms {
namespace {
std::size_t HashOf(std::string_view Name) {
  return std::hash<std::string_view>()(Name);
}
}  // namespace

std::size_t TClassNames::Locate(std::string_view Name, std::size_t Hash) const {
  // The slot that holds Name, or the free slot that ends its probe run.
  const std::size_t Mask = FSlots.size() - 1;
  std::size_t i = Hash & Mask;
  for (;; i = (i + 1) & Mask) {
    const TSlot& Slot = FSlots[i];
    if (!Slot.Class ||
        (Slot.Hash == Hash && std::string_view(FNames).substr(Slot.Offset, Slot.Length) == Name))
      return i;
  }
}

const Ref<IRTTIClass>& TClassNames::Find(std::string_view Name) const {
  static const Ref<IRTTIClass> None;
  if (FCount == 0) return None;
  return FSlots[Locate(Name, HashOf(Name))].Class;
}

const Ref<IRTTIClass>& TClassNames::Add(std::string_view Name, const Ref<IRTTIClass>& Class) {
  GELLO_ASSERT(Class, u"Assertion failure");
  if (FNames.size() + Name.size() > UINT32_MAX) throw Exception(u"Too many type names in a model");
  if ((FCount + 1) * 2 > FSlots.size()) Grow();
  const std::size_t Hash = HashOf(Name);
  TSlot& Slot = FSlots[Locate(Name, Hash)];
  Slot = TSlot{Hash, static_cast<std::uint32_t>(FNames.size()),
               static_cast<std::uint32_t>(Name.size()), Class};
  FNames.append(Name);
  ++FCount;
  return Slot.Class;
}

void TClassNames::Grow() {
  GrowSlots(FSlots, 64, [](const TSlot& Slot) { return Slot.Class != nullptr; });
}

}  // namespace gello::forms
