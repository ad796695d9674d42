#pragma once
// Property values kept by property index, shared by dynamic instances and tuples.
#include <cstddef>
#include <vector>
#include "gello/model/Interfaces.h"

namespace gello {

/// The property at a position of the class's property list (ancestors' first), numbered.
Ref<IRTTIProperty> PropertyAtPosition(IRTTIClass* Class, int Position);
/// The property of that name in the class or an ancestor, numbered.
Ref<IRTTIProperty> PropertyNamed(IRTTIClass* Class, const String& Name);

/// The value in the property's slot; none without a property or past the end.
template <class T>
Ref<T> SlotValue(const std::vector<Ref<T>>& Slots, IRTTIProperty* Property) {
  if (!Property) return nullptr;
  auto Index = static_cast<std::size_t>(Property->GetPropertyIndex());
  return Index < Slots.size() ? Slots[Index] : nullptr;
}

/// Stores into the property's slot, growing the slots when the class gained properties since
/// they were sized; without a property nothing happens.
template <class T>
void StoreSlot(std::vector<Ref<T>>& Slots, IRTTIProperty* Property, const Ref<T>& Value) {
  if (!Property) return;
  auto Index = static_cast<std::size_t>(Property->GetPropertyIndex());
  if (Index >= Slots.size()) Slots.resize(Index + 1);
  Slots[Index] = Value;
}

}  // namespace gello
