#include "gello/model/Package.h"

#include "gello/foundation/Exceptions.h"
#include "gello/model/ElementList.h"
#include "gello/model/MethodTimer.h"

namespace gello {

TRTTIPackage::TRTTIPackage(String Name) : TRTTIScope(std::move(Name), true) {
  // Reading a package again fills the classes it already has instead of doubling them.
  GetMembers()->SetMergeElements(true);
}

TRTTIPackage::~TRTTIPackage() {
  TRTTIPackage::Clear();
}

void TRTTIPackage::Unuse() {
  std::int32_t Count = FUseCount.load();
  do {
    if (Count == 0)
      throw Exception(u"RTTI error - trying to unuse package when use count is 0 " + GetName());
  } while (!FUseCount.compare_exchange_weak(Count, Count - 1));
}

void TRTTIPackage::Resolve(IRTTIScope* Scope) {
  Ref<TMethodTimer> Timer = MethodTimer(u"resolve package " + GetName());
  TRTTIScope::Resolve(Scope);
  // Then each member scope again, now against this package.
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Member = DynCast<IRTTIScope>(Members->GetItems(i))) Member->Resolve(this);
}

void TRTTIPackage::Clear() {
  FImports = nullptr;
  if (FMainBlock) FMainBlock->Clear();
  FMainBlock = nullptr;
  TRTTIScope::Clear();
}

}  // namespace gello
