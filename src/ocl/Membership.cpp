#include "Membership.h"

namespace gello {

TMembership::TMembership(IOCLCollection* c) {
  auto* Own = dynamic_cast<TOCLCollection*>(c);
  if (Own && Own->HeldItems()) {
    FItems = Own->HeldItems();
    FIndex = &Own->HeldIndex();
    return;
  }
  AnyElementOf(c, [this](const Ref<IOCLAny>& Element) {
    FOwnIndex.Insert(Element.get(), static_cast<int>(FOwnItems.size()));
    FOwnItems.push_back(Element);
    return false;
  });
}

}  // namespace gello
