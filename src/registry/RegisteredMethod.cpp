#include "gello/registry/RegisteredMethod.h"

namespace gello {

TOCLRegisteredMethod::TOCLRegisteredMethod(const String& Name, const Ref<IRTTIClass>& ResultType,
                                           const TIntfEntry& Entry, int Slot)
    : TRTTIMethod(Name, ResultType), FInfo{Entry.Call, FromLatin1(Entry.Name), &Entry} {
  SetVmtIndex(Slot);
}

const TMethodInfo* GetMethodInfo(const IRTTIMethod* Method) noexcept {
  auto* Registered = CachedCast<TOCLRegisteredMethod>(Method);
  return Registered ? &Registered->GetMethodInfo() : nullptr;
}

}  // namespace gello
