#include "gello/ocl/Tuple.h"

#include "../model/PropertySlots.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

TOCLTuple::TOCLTuple(const Ref<IRTTIClass>& AClass) : TOCLMemInstance(AClass) {
  if (AClass) SetCount(AClass->GetPropertyCount());
}

Ref<IRTTIClass> TOCLTuple::GetInstanceType() const {
  Ref<IRTTIClass> Own = TOCLMemInstance::GetInstanceType();
  return Own ? Own : OCLSystemClasses().Tuple;
}

String TOCLTuple::GetasString() const {
  Ref<IRTTIClass> Own = TOCLMemInstance::GetInstanceType();
  if (!Own) return u"<Tuple>";
  return IsDefined() ? u"<" + Own->GetName() + u">" : u"null: " + Own->GetName();
}

TJSON TOCLTuple::FieldsJSON(bool Compact) const {
  TJSON Result = TOCLAny::GetasJSON();
  IRTTIClass* Own = TOCLMemInstance::GetInstanceType().get();
  for (int i = 0; i < GetPropertyCount(); ++i) {
    Ref<IRTTIProperty> Property = PropertyAtPosition(Own, i);
    Ref<IOCLAny> Field = SlotValue(Items(), Property.get());
    if (Field)
      Result[ToUTF8(Property->GetName())] =
          Compact ? Field->GetasCompactJSON() : Field->GetasJSON();
  }
  return Result;
}

TJSON TOCLTuple::GetasJSON() const {
  return FieldsJSON(false);
}

TJSON TOCLTuple::GetasCompactJSON() const {
  return FieldsJSON(true);
}

Ref<IRTTIClassInstance> TOCLTuple::CreateProperty(const String& Name) {
  Ref<IRTTIProperty> Property = PropertyNamed(TOCLMemInstance::GetInstanceType().get(), Name);
  if (!Property) return nullptr;
  Ref<IOCLAny> Field = CreateFromClass(Property->GetPropertyType());
  StoreSlot(Items(), Property.get(), Field);
  return Field;
}

int TOCLTuple::GetPropertyCount() const {
  Ref<IRTTIClass> Own = TOCLMemInstance::GetInstanceType();
  return Own ? Own->GetPropertyCount() : 0;
}

String TOCLTuple::GetPropertyName(int Index) const {
  Ref<IRTTIProperty> Property = PropertyAtPosition(TOCLMemInstance::GetInstanceType().get(), Index);
  return Property ? Property->GetName() : String();
}

Ref<IRTTIClassInstance> TOCLTuple::GetPropertyValue(int Index) const {
  return SlotValue(Items(),
                   PropertyAtPosition(TOCLMemInstance::GetInstanceType().get(), Index).get());
}

Ref<IRTTIClassInstance> TOCLTuple::GetPropertyByName(const String& Name) const {
  return SlotValue(Items(), PropertyNamed(TOCLMemInstance::GetInstanceType().get(), Name).get());
}

void TOCLTuple::StoreField(const Ref<IRTTIProperty>& Property,
                           const Ref<IRTTIClassInstance>& Value) {
  if (!Property) return;
  auto Field = DynCast<IOCLAny>(Value);
  if (Value && !Field) throw EOCLException(u"incompatible type for " + Property->GetName());
  StoreSlot(Items(), Property.get(), Field);
}

void TOCLTuple::SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) {
  StoreField(PropertyAtPosition(TOCLMemInstance::GetInstanceType().get(), Index), Value);
}

void TOCLTuple::SetPropertyByName(const String& Name, const Ref<IRTTIClassInstance>& Value) {
  StoreField(PropertyNamed(TOCLMemInstance::GetInstanceType().get(), Name), Value);
}

}  // namespace gello
