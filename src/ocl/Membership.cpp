#include "Membership.h"

namespace gello {

TMembership::TMembership(IOCLCollection* c) {
  auto* Own = CachedCast<TOCLCollection>(c);
  if (Own && Own->Held()) {
    FElements = *Own->Held();
    return;
  }
  AnyElementOf(c, [this](const Ref<IOCLAny>& Element) {
    FElements.Append(Element);
    return false;
  });
}

}  // namespace gello
