#include "gello/instance/Instance.h"

#include "../model/PropertySlots.h"
#include "gello/foundation/Exceptions.h"
#include "gello/instance/CollectionInstance.h"
#include "gello/instance/DataCells.h"
#include "gello/model/Class.h"

namespace gello {

TRTTIClassInstance::TRTTIClassInstance(const Ref<IRTTIClass>& Class) : FInstanceType(Class) {
  if (Class) FValues.resize(static_cast<std::size_t>(Class->GetPropertyCount()));
}

Ref<IRTTIClassInstance> TRTTIClassInstance::CreateFromClass(const Ref<IRTTIClass>& Class) {
  if (!Class) return nullptr;
  // The top bit of the kind is a flag, not part of it.
  switch (static_cast<TRTTIClassKind>(Class->GetClassKind() & 0x7F)) {
    case rtti_undefined:
      throw Exception(u"Internal error: undefined class kind (" + Class->GetName() + u")");
    case rtti_class:
      return MakeRef<TRTTIClassInstance>(Class);
    case rtti_bag:
    case rtti_sequence:
    case rtti_set:
      return MakeRef<TRTTICollectionInstance>(Class);
    case rtti_string:
      return MakeRef<TRTTIStringData>(Class);
    case rtti_integer:
      return MakeRef<TRTTIIntegerData>(Class);
    case rtti_real:
      return MakeRef<TRTTIRealData>(Class);
    case rtti_boolean:
      return MakeRef<TRTTIBooleanData>(Class);
  }
  return nullptr;
}

namespace {

Ref<IRTTIClassInstance> MakeStandAlone(const String& ClassName) {
  return MakeRef<TRTTIClassInstance>(MakeRef<TRTTIClass>(ClassName));
}

[[maybe_unused]] const bool MakerInstalled = (SetClassInstanceMaker(MakeStandAlone), true);

}  // namespace

Ref<IRTTIClassInstance> TRTTIClassInstance::ClassFactory(const String& ClassName) {
  return NewClassInstance(ClassName);
}

String TRTTIClassInstance::ClassName() const {
  return FInstanceType ? FInstanceType->GetName() : String();
}

Ref<IRTTIClassInstance> TRTTIClassInstance::CreateProperty(const String& Name) {
  Ref<IRTTIProperty> Property = PropertyNamed(FInstanceType.get(), Name);
  if (!Property) return nullptr;
  Ref<IRTTIClassInstance> Value = CreateFromClass(Property->GetPropertyType());
  StoreSlot(FValues, Property.get(), Value);
  return Value;
}

int TRTTIClassInstance::GetPropertyCount() const {
  return FInstanceType ? FInstanceType->GetPropertyCount() : 0;
}

String TRTTIClassInstance::GetPropertyName(int Index) const {
  Ref<IRTTIProperty> Property = PropertyAtPosition(FInstanceType.get(), Index);
  return Property ? Property->GetName() : String();
}

Ref<IRTTIClassInstance> TRTTIClassInstance::GetPropertyValue(int Index) const {
  return SlotValue(FValues, PropertyAtPosition(FInstanceType.get(), Index).get());
}

void TRTTIClassInstance::SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) {
  StoreSlot(FValues, PropertyAtPosition(FInstanceType.get(), Index).get(), Value);
}

Ref<IRTTIClassInstance> TRTTIClassInstance::GetPropertyByName(const String& Name) const {
  return SlotValue(FValues, PropertyNamed(FInstanceType.get(), Name).get());
}

void TRTTIClassInstance::SetPropertyByName(const String& Name,
                                           const Ref<IRTTIClassInstance>& Value) {
  StoreSlot(FValues, PropertyNamed(FInstanceType.get(), Name).get(), Value);
}

TJSON TRTTIClassInstance::ValueJSON(bool) const {
  return nullptr;
}

TJSON TRTTIClassInstance::PropertiesJSON(bool Compact) const {
  TJSON Result = TJSON::object();
  Result["#type"] = ToUTF8(ClassName());
  for (int i = 0; i < GetPropertyCount(); ++i) {
    Ref<IRTTIProperty> Property = PropertyAtPosition(FInstanceType.get(), i);
    Ref<IRTTIClassInstance> Value = SlotValue(FValues, Property.get());
    if (Value)
      Result[ToUTF8(Property->GetName())] =
          Compact ? Value->GetasCompactJSON() : Value->GetasJSON();
  }
  return Result;
}

TJSON TRTTIClassInstance::GetasJSON() const {
  TJSON Result = PropertiesJSON(false);
  if (HasValue()) Result[".value"] = ValueJSON(false);
  return Result;
}

TJSON TRTTIClassInstance::GetasCompactJSON() const {
  return HasValue() ? ValueJSON(true) : PropertiesJSON(true);
}

}  // namespace gello
