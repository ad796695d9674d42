#include "gello/model/Property.h"

#include "gello/foundation/Exceptions.h"

namespace gello {

TRTTIProperty::TRTTIProperty(String Name) : TRTTIElement(std::move(Name)) {}

TRTTIProperty::TRTTIProperty(const String& Name, const Ref<IRTTIClass>& PropertyType,
                             TPropInfo PropInfo)
    : TRTTIElement(Name), FPropertyType(PropertyType), FPropInfo(PropInfo) {
  GELLO_ASSERT(PropertyType, u"Property " + Name + u" PropertyType is nil");
}

TRTTIProperty::~TRTTIProperty() {
  TRTTIProperty::Clear();
}

void TRTTIProperty::SetPropertyIndex(std::int32_t Value) {
  // Instances keep one data cell per index: moving a property would scramble their data.
  GELLO_ASSERT(!FIndexSet || FPropertyIndex == Value,
               u"PropertyIndex altered!  Data may be inconsistent.");
  FPropertyIndex = Value;
  FIndexSet = true;
}

bool TRTTIProperty::Compatible(IRTTIClass* Other) {
  return FPropertyType && FPropertyType->Compatible(Other);
}

bool TRTTIProperty::Derives(IRTTIClass* Other, IRTTIElementList& Path) {
  return FPropertyType && FPropertyType->Derives(Other, Path);
}

void TRTTIProperty::Resolve(IRTTIScope* Scope) {
  TRTTIElement::Resolve(Scope);
  FPropertyType = ResolveClass(FPropertyType, Scope);
}

void TRTTIProperty::WalkClasses(IRTTIElementList& List) {
  if (FPropertyType) FPropertyType->WalkClasses(List);
}

void TRTTIProperty::Clear() {
  FPropertyType = nullptr;
  if (FPropertyValue) FPropertyValue->Clear();
  FPropertyValue = nullptr;
  TRTTIElement::Clear();
}

}  // namespace gello
