#include "PropertySlots.h"

namespace gello {

Ref<IRTTIProperty> PropertyAtPosition(IRTTIClass* Class, int Position) {
  if (!Class || Position < 0) return nullptr;
  Class->GetPropertyIndexAllocation();
  return Class->GetProperties(Position);
}

Ref<IRTTIProperty> PropertyNamed(IRTTIClass* Class, const String& Name) {
  if (!Class) return nullptr;
  Class->GetPropertyIndexAllocation();
  return Class->Lookup<IRTTIProperty>(Name);
}

}  // namespace gello
