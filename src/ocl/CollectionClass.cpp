#include "CollectionClass.h"

#include "gello/model/Class.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

Ref<IRTTIClass> CollectionClassFor(const Ref<IRTTIClass>& KindClass,
                                   const Ref<IRTTIClass>& Element) {
  if (!KindClass || !Element || Element == OCLSystemClasses().T) return KindClass;
  String Kind = KindClass->GetName();
  Kind = Kind.substr(0, Kind.find(u'('));
  auto Result = MakeRef<TRTTIClass>(Kind + u"(" + Element->GetName() + u")", KindClass, Element);
  Result->SetClassKind(KindClass->GetClassKind());
  return Result;
}

Ref<IRTTIClass> InnermostElement(const Ref<IRTTIClass>& Class) {
  Ref<IRTTIClass> Element = Class ? Class->GetImmediateElementType() : nullptr;
  // The depth limit keeps a cycle of element types from looping.
  for (int Depth = 0; Element && Element->IsCollection() && Depth < 64; ++Depth) {
    Ref<IRTTIClass> Inner = Element->GetImmediateElementType();
    if (!Inner) break;
    Element = Inner;
  }
  return Element;
}

}  // namespace gello
