#include "gello/foundation/Exceptions.h"
#include "gello/registry/Registry.h"

namespace gello {

TOCLRegistryEntry::TOCLRegistryEntry(const TIntfInfo& Intf, const Ref<IRTTIClass>& Class)
    : FIntf(&Intf), FClass(Class) {
  FClass->SetInstanceIntf(Intf.IID);
  FClass->SetHostType(&Intf);
  // The class must answer for the interface it is now bound to.
  GELLO_ASSERT(FClass->GetHostType() == &Intf, u"Assertion failure");
  GELLO_ASSERT(!IsNullGUID(Intf.IID), u"Assertion failure");
}

void TOCLRegistryEntry::SetImplClass(THostClass Value) {
  FImplClass = Value;
  FClass->SetInstanceImpl(Value);
}

}  // namespace gello
