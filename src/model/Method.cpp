#include "gello/model/Method.h"

#include "gello/foundation/Exceptions.h"
#include "gello/model/ElementList.h"

namespace gello {

TRTTIMethod::TRTTIMethod(String Name)
    : TRTTIElement(std::move(Name)), FParams(MakeRef<TRTTIElementList>()) {}

TRTTIMethod::TRTTIMethod(const String& Name, const Ref<IRTTIClass>& ResultType,
                         const Ref<IRTTIElementList>& Params)
    : TRTTIElement(Name),
      FParams(Params ? Params : MakeRef<TRTTIElementList>()),
      FResultType(ResultType) {
  GELLO_ASSERT(ResultType, u"Assertion failure");
}

TRTTIMethod::~TRTTIMethod() {
  TRTTIMethod::Clear();
}

bool TRTTIMethod::Compatible(IRTTIClass* Other) {
  return FResultType && FResultType->Compatible(Other);
}

bool TRTTIMethod::Derives(IRTTIClass* Other, IRTTIElementList& Path) {
  return FResultType && FResultType->Derives(Other, Path);
}

void TRTTIMethod::Resolve(IRTTIScope* Scope) {
  TRTTIElement::Resolve(Scope);
  if (FParams) FParams->Resolve(Scope);
  FResultType = ResolveClass(FResultType, Scope);
  if (FResultValue) FResultValue->Resolve(Scope);
}

void TRTTIMethod::WalkClasses(IRTTIElementList& List) {
  if (FResultType) FResultType->WalkClasses(List);
  for (int i = 0; FParams && i < FParams->GetCount(); ++i)
    FParams->GetItems(i)->WalkClasses(List);
}

void TRTTIMethod::Clear() {
  FResultType = nullptr;
  if (FResultValue) FResultValue->Clear();
  FResultValue = nullptr;
  if (FParams) FParams->Reset();
  TRTTIElement::Clear();
}

}  // namespace gello
