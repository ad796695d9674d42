#include "gello/instance/CollectionInstance.h"

#include "gello/foundation/Exceptions.h"

namespace gello {

TRTTICollectionInstance::TRTTICollectionInstance(const Ref<IRTTIClass>& Class)
    : TRTTIClassInstance(Class) {
  Values().clear();
}

Ref<IRTTIClassInstance> TRTTICollectionInstance::CreateElement() {
  Ref<IRTTIClass> Type = GetInstanceType();
  Ref<IRTTIClassInstance> Element = CreateFromClass(Type ? Type->GetElementType() : nullptr);
  Add(Element);
  return Element;
}

void TRTTICollectionInstance::SetCount(int Value) {
  Values().resize(static_cast<std::size_t>(Value < 0 ? 0 : Value));
}

Ref<IRTTIClassInstance> TRTTICollectionInstance::GetElements(int Index) const {
  if (Index < 0 || Index >= GetCount()) return nullptr;
  return Values()[static_cast<std::size_t>(Index)];
}

void TRTTICollectionInstance::SetElements(int Index, const Ref<IRTTIClassInstance>& Value) {
  if (Index < 0) return;
  if (Index >= GetCount()) SetCount(Index + 1);
  Values()[static_cast<std::size_t>(Index)] = Value;
}

void TRTTICollectionInstance::SetasString(const String&) {
  throw Exception(u"RTTI collection instance can't be assigned a string value: " + ClassName());
}

TJSON TRTTICollectionInstance::ValueJSON(bool Compact) const {
  TJSON Result = TJSON::array();
  for (const Ref<IRTTIClassInstance>& Element : Values()) {
    if (!Element)
      Result.push_back(nullptr);
    else
      Result.push_back(Compact ? Element->GetasCompactJSON() : Element->GetasJSON());
  }
  return Result;
}

}  // namespace gello
