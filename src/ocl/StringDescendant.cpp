#include "gello/ocl/StringDescendant.h"

#include "gello/ocl/Tuple.h"

namespace gello {

TOCLStringDescendant::TOCLStringDescendant(const Ref<IRTTIClass>& AClass)
    : TOCLString(AClass), Fdescendant(MakeRef<TOCLTuple>(AClass)) {}

Ref<IRTTIClass> TOCLStringDescendant::GetInstanceType() const {
  return Fdescendant->GetInstanceType();
}

int TOCLStringDescendant::GetPropertyCount() const {
  return Fdescendant->GetPropertyCount();
}

String TOCLStringDescendant::GetPropertyName(int Index) const {
  return Fdescendant->GetPropertyName(Index);
}

Ref<IRTTIClassInstance> TOCLStringDescendant::GetPropertyByName(const String& Name) const {
  return Fdescendant->GetPropertyByName(Name);
}

Ref<IRTTIClassInstance> TOCLStringDescendant::GetPropertyValue(int Index) const {
  return Fdescendant->GetPropertyValue(Index);
}

void TOCLStringDescendant::SetPropertyByName(const String& Name,
                                             const Ref<IRTTIClassInstance>& Value) {
  Fdescendant->SetPropertyByName(Name, Value);
}

void TOCLStringDescendant::SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) {
  Fdescendant->SetPropertyValue(Index, Value);
}

}  // namespace gello
