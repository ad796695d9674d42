#include "gello/expr/Value.h"

namespace gello {

TRTTIValue::TRTTIValue(String Name) : TRTTIElement(std::move(Name)) {}

TRTTIValue::TRTTIValue(const Ref<IRTTIClass>& ValueType) : FValueType(ValueType) {}

TRTTIValue::~TRTTIValue() {
  TRTTIValue::Clear();
}

void TRTTIValue::Resolve(IRTTIScope* Scope) {
  TRTTIElement::Resolve(Scope);
  // A placeholder type made by name while reading becomes the class the scope knows.
  FValueType = ResolveClass(FValueType, Scope);
}

void TRTTIValue::Clear() {
  FValueType = nullptr;
  TRTTIElement::Clear();
}

}  // namespace gello
