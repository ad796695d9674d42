#include "gello/model/InterfaceQuery.h"

namespace gello {
namespace {

template <class I>
bool Is(IRTTIElement* Element) {
  return CachedCast<I>(Element) != nullptr;
}

struct TInterfaceTest {
  GUID IID;
  bool (*Test)(IRTTIElement*);
};

constexpr TInterfaceTest Interfaces[] = {
    {IRTTIElement::IID, Is<IRTTIElement>},
    {IRTTIScope::IID, Is<IRTTIScope>},
    {IRTTIClass::IID, Is<IRTTIClass>},
    {IRTTIProperty::IID, Is<IRTTIProperty>},
    {IRTTIMethod::IID, Is<IRTTIMethod>},
    {IRTTIValue::IID, Is<IRTTIValue>},
    {IRTTILiteral::IID, Is<IRTTILiteral>},
    {IRTTIPackage::IID, Is<IRTTIPackage>},
    {IRTTIPackageList::IID, Is<IRTTIPackageList>},
    {IRTTIGlobals::IID, Is<IRTTIGlobals>},
};

}  // namespace

bool Supports(IRTTIElement* Element, const GUID& InterfaceId) {
  if (!Element) return false;
  for (const TInterfaceTest& Entry : Interfaces)
    if (Entry.IID == InterfaceId) return Entry.Test(Element);
  return false;
}

}  // namespace gello
