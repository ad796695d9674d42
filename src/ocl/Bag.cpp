#include "gello/ocl/Bag.h"

#include "CollectionClass.h"
#include "Membership.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

TOCLBag::TOCLBag(const Ref<IRTTIClass>& AClass, bool InMemory)
    : TOCLCollection(AClass ? AClass : OCLSystemClasses().Bag, InMemory) {}

Ref<TOCLCollection> TOCLBag::Clone() const {
  return MakeRef<TOCLBag>(GetInstanceType());
}

Ref<IOCLBag> TOCLBag::Empty() const {
  return DynCast<IOCLBag>(Clone());
}

bool TOCLBag::isEqual(IOCLAny*) const {
  throw EOCLException(u"comparison of OCL Bag is not supported yet.");
}

Ref<IOCLBag> TOCLBag::Joined(IOCLCollection* c) const {
  Ref<TOCLCollection> Result = Copy();
  Result->AddAll(c);
  return DynCast<IOCLBag>(Result);
}

Ref<IOCLBag> TOCLBag::including(IOCLAny* e) const {
  Ref<TOCLCollection> Result = Copy();
  Result->Add(e);
  return DynCast<IOCLBag>(Result);
}

Ref<IOCLBag> TOCLBag::excluding(IOCLAny* e) const {
  return DynCast<IOCLBag>(Without(e));
}

Ref<IOCLBag> TOCLBag::union_(IOCLSet* s) const {
  return Joined(s);
}

Ref<IOCLBag> TOCLBag::union_(IOCLBag* b) const {
  return Joined(b);
}

Ref<IOCLBag> TOCLBag::intersection(IOCLSet* s) const {
  TMembership InOther(s);
  Ref<TOCLCollection> Result = Clone();
  Result->AddWhere(const_cast<TOCLBag*>(this), [&](const Ref<IOCLAny>& Element) {
    return InOther.Contains(Element.get()) && !Result->Exists(Element.get());
  });
  return DynCast<IOCLBag>(Result);
}

Ref<IOCLBag> TOCLBag::intersection(IOCLBag* b) const {
  // Each element of b is matched at most once, so a value is kept min(count here, count in b).
  TMembership InOther(b);
  std::vector<bool> Used(static_cast<std::size_t>(b ? b->GetCount() : 0), false);
  Ref<TOCLCollection> Result = Clone();
  Result->AddWhere(const_cast<TOCLBag*>(this), [&](const Ref<IOCLAny>& Element) {
    for (int Position : InOther.Matches(Element.get())) {
      if (Used[static_cast<std::size_t>(Position)]) continue;
      Used[static_cast<std::size_t>(Position)] = true;
      return true;
    }
    return false;
  });
  return DynCast<IOCLBag>(Result);
}

Ref<IOCLBag> TOCLBag::flatten() const {
  auto Result = MakeRef<TOCLBag>(
      CollectionClassFor(OCLSystemClasses().Bag, InnermostElement(GetInstanceType())));
  AddFlattened(*Result, const_cast<TOCLBag*>(this), false);
  return Result;
}

Ref<IOCLBag> TOCLBag::union_(IOCLCollection* c) const {
  if (!CachedCast<IOCLBag>(c) && !CachedCast<IOCLSet>(c))
    throw EOCLException(u"union of a Bag needs a Set or a Bag");
  return Joined(c);
}

Ref<IOCLBag> TOCLBag::intersection(IOCLCollection* c) const {
  if (auto* b = CachedCast<IOCLBag>(c)) return intersection(b);
  if (auto* s = CachedCast<IOCLSet>(c)) return intersection(s);
  throw EOCLException(u"intersection of a Bag needs a Set or a Bag");
}

Ref<IOCLBag> TOCLBag::_COLLECTOP_reject(IOCLBoolean*) const {
  return Empty();
}

Ref<IOCLBag> TOCLBag::_COLLECTOP_select(IOCLBoolean*) const {
  return Empty();
}

Ref<IOCLBag> TOCLBag::_COLLECTOP_collect(IOCLAny*) const {
  return Empty();
}

}  // namespace gello
