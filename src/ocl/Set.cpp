#include "gello/ocl/Set.h"

#include "CollectionClass.h"
#include "Membership.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Bag.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

TOCLSet::TOCLSet(const Ref<IRTTIClass>& AClass, bool InMemory)
    : TOCLCollection(AClass ? AClass : OCLSystemClasses().Set, InMemory) {}

Ref<TOCLCollection> TOCLSet::Clone() const {
  return MakeRef<TOCLSet>(GetInstanceType());
}

Ref<TOCLCollection> TOCLSet::NewBag() const {
  Ref<IRTTIClass> Element =
      GetInstanceType() ? GetInstanceType()->GetImmediateElementType() : nullptr;
  return MakeRef<TOCLBag>(CollectionClassFor(OCLSystemClasses().Bag, Element));
}

bool TOCLSet::isEqual(IOCLAny* Other) const {
  auto* Rhs = CachedCast<IOCLSet>(Other);
  if (!Rhs) return false;
  TMembership InOther(Rhs);
  return !AnyElement([&](const Ref<IOCLAny>& Element) { return !InOther.Contains(Element.get()); });
}

Ref<IOCLSet> TOCLSet::including(IOCLAny* e) const {
  Ref<TOCLCollection> Result = Copy();
  if (!Exists(e)) Result->Add(e);
  return DynCast<IOCLSet>(Result);
}

Ref<IOCLSet> TOCLSet::excluding(IOCLAny* e) const {
  return DynCast<IOCLSet>(Without(e));
}

Ref<IOCLSet> TOCLSet::union_(IOCLSet* s) const {
  Ref<TOCLCollection> Result = Copy();
  Result->AddWhere(s, [this](const Ref<IOCLAny>& Element) { return !Exists(Element.get()); });
  return DynCast<IOCLSet>(Result);
}

Ref<IOCLBag> TOCLSet::union_(IOCLBag* b) const {
  Ref<TOCLCollection> Result = NewBag();
  Result->AddAll(const_cast<TOCLSet*>(this));
  // Duplicates inside b that are new to the receiver are all kept.
  Result->AddWhere(b, [this](const Ref<IOCLAny>& Element) { return !Exists(Element.get()); });
  return DynCast<IOCLBag>(Result);
}

Ref<IOCLBag> TOCLSet::intersection(IOCLBag* b) const {
  Ref<TOCLCollection> Result = NewBag();
  Result->AddWhere(b, [this](const Ref<IOCLAny>& Element) { return Exists(Element.get()); });
  return DynCast<IOCLBag>(Result);
}

Ref<IOCLSet> TOCLSet::intersection(IOCLSet* s) const {
  TMembership InOther(s);
  Ref<TOCLCollection> Result = Clone();
  Result->AddWhere(const_cast<TOCLSet*>(this),
                   [&](const Ref<IOCLAny>& Element) { return InOther.Contains(Element.get()); });
  return DynCast<IOCLSet>(Result);
}

Ref<IOCLSet> TOCLSet::_SUBTRACT_(IOCLSet* s) const {
  TMembership InOther(s);
  auto Result = MakeRef<TOCLSet>(GetInstanceType());
  Result->AddWhere(const_cast<TOCLSet*>(this),
                   [&](const Ref<IOCLAny>& Element) { return !InOther.Contains(Element.get()); });
  return Result;
}

Ref<IOCLSet> TOCLSet::symmetricDifference(IOCLSet* s) const {
  TMembership InOther(s);
  Ref<TOCLCollection> Result = Clone();
  Result->AddWhere(const_cast<TOCLSet*>(this),
                   [&](const Ref<IOCLAny>& Element) { return !InOther.Contains(Element.get()); });
  Result->AddWhere(s, [this](const Ref<IOCLAny>& Element) { return !Exists(Element.get()); });
  return DynCast<IOCLSet>(Result);
}

Ref<IOCLSet> TOCLSet::flatten() const {
  auto Result = MakeRef<TOCLSet>(
      CollectionClassFor(OCLSystemClasses().Set, InnermostElement(GetInstanceType())));
  AddFlattened(*Result, const_cast<TOCLSet*>(this), true);
  return Result;
}

Ref<IOCLCollection> TOCLSet::union_(IOCLCollection* c) const {
  if (auto* b = CachedCast<IOCLBag>(c)) return union_(b);
  if (auto* s = CachedCast<IOCLSet>(c)) return union_(s);
  throw EOCLException(u"union of a Set needs a Set or a Bag");
}

Ref<IOCLCollection> TOCLSet::intersection(IOCLCollection* c) const {
  if (auto* b = CachedCast<IOCLBag>(c)) return intersection(b);
  if (auto* s = CachedCast<IOCLSet>(c)) return intersection(s);
  throw EOCLException(u"intersection of a Set needs a Set or a Bag");
}

Ref<IOCLSet> TOCLSet::_COLLECTOP_select(IOCLBoolean*) const {
  return DynCast<IOCLSet>(Clone());
}

Ref<IOCLSet> TOCLSet::_COLLECTOP_reject(IOCLBoolean*) const {
  return DynCast<IOCLSet>(Clone());
}

Ref<IOCLBag> TOCLSet::_COLLECTOP_collect(IOCLAny*) const {
  return DynCast<IOCLBag>(NewBag());
}

}  // namespace gello
