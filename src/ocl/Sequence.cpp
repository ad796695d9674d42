#include "gello/ocl/Sequence.h"

#include <algorithm>
#include "CollectionClass.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {

std::int64_t Low32(IOCLInteger* Value) {
  return Value ? static_cast<std::int32_t>(Value->GetasInt64()) : 0;
}

}  // namespace

void AddFlattened(TOCLCollection& Into, IOCLCollection* c, bool Distinct) {
  AnyElementOf(c, [&](const Ref<IOCLAny>& Element) {
    if (auto* Nested = CachedCast<IOCLCollection>(Element.get()))
      AddFlattened(Into, Nested, Distinct);
    else if (!Distinct || !Into.Exists(Element.get()))
      Into.Add(Element);
    return false;
  });
}

TOCLSequence::TOCLSequence(const Ref<IRTTIClass>& AClass, bool InMemory)
    : TOCLCollection(AClass ? AClass : OCLSystemClasses().Sequence, InMemory) {}

Ref<TOCLCollection> TOCLSequence::Clone() const {
  return MakeRef<TOCLSequence>(GetInstanceType());
}

Ref<IOCLSequence> TOCLSequence::Empty() const {
  return DynCast<IOCLSequence>(Clone());
}

bool TOCLSequence::isEqual(IOCLAny* Other) const {
  auto* Rhs = CachedCast<IOCLSequence>(Other);
  if (!Rhs) return false;
  Ref<IFastIterator> Right = Rhs->FastIterator();
  bool Differs = AnyElement([&](const Ref<IOCLAny>& Element) {
    return Right->Advance() || !Element || !Element->isEqual(Right->CurrentElement().get());
  });
  return !Differs && Right->Advance();
}

Ref<IOCLSequence> TOCLSequence::Slice(std::int64_t From, std::int64_t To) const {
  Ref<TOCLCollection> Result = Clone();
  std::int64_t Position = 0;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    if (Position >= From && Position < To) Result->Add(Element);
    return ++Position >= To;
  });
  return DynCast<IOCLSequence>(Result);
}

Ref<IOCLSequence> TOCLSequence::append(IOCLAny* o) const {
  Ref<TOCLCollection> Result = Copy();
  Result->Add(o);
  return DynCast<IOCLSequence>(Result);
}

Ref<IOCLSequence> TOCLSequence::including(IOCLAny* e) const {
  return append(e);
}

Ref<IOCLSequence> TOCLSequence::prepend(IOCLAny* o) const {
  return insertAt(nullptr, o);
}

Ref<IOCLSequence> TOCLSequence::insertAt(IOCLInteger* i, IOCLAny* o) const {
  // Positions below 1 put o first; positions past the end put it last.
  std::int64_t Before = std::max<std::int64_t>(Low32(i) - 1, 0);
  Ref<TOCLCollection> Result = Clone();
  std::int64_t Position = 0;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    if (Position++ == Before) Result->Add(o);
    Result->Add(Element);
    return false;
  });
  if (Position <= Before) Result->Add(o);
  return DynCast<IOCLSequence>(Result);
}

Ref<IOCLAny> TOCLSequence::at(IOCLInteger* i) const {
  std::int64_t Position = Low32(i);
  if (Position < 1) return nullptr;
  return GetItems(static_cast<int>(Position - 1));
}

Ref<IOCLAny> TOCLSequence::first() const {
  return GetItems(0);
}

Ref<IOCLAny> TOCLSequence::last() const {
  if (const TElements* Own = Held()) return Own->At(Own->Count() - 1);
  Ref<IOCLAny> Last;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    Last = Element;
    return false;
  });
  return Last;
}

Ref<IOCLSequence> TOCLSequence::subSequence(IOCLInteger* lower, IOCLInteger* upper) const {
  return Slice(std::max<std::int64_t>(Low32(lower), 1) - 1, Low32(upper));
}

Ref<IOCLSequence> TOCLSequence::excluding(IOCLAny* e) const {
  return DynCast<IOCLSequence>(Without(e));
}

Ref<IOCLInteger> TOCLSequence::indexOf(IOCLAny* o) const {
  if (const TElements* Own = Held()) return MakeRef<TOCLInteger>(Own->FirstOf(o) + 1);
  std::int64_t Position = 0;
  bool Found = AnyElement([&](const Ref<IOCLAny>& Element) {
    ++Position;
    return Element && Element->isEqual(o);
  });
  return MakeRef<TOCLInteger>(Found ? Position : 0);
}

Ref<IOCLSequence> TOCLSequence::reverse() const {
  Ref<TOCLCollection> Result = Clone();
  std::vector<Ref<IOCLAny>> Elements;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    Elements.push_back(Element);
    return false;
  });
  for (auto It = Elements.rbegin(); It != Elements.rend(); ++It)
    Result->Add(*It);
  return DynCast<IOCLSequence>(Result);
}

Ref<IOCLSequence> TOCLSequence::union_(IOCLSequence* b) const {
  Ref<TOCLCollection> Result = Copy();
  Result->AddAll(b);
  return DynCast<IOCLSequence>(Result);
}

Ref<IOCLSequence> TOCLSequence::flatten() const {
  auto Result = MakeRef<TOCLSequence>(
      CollectionClassFor(OCLSystemClasses().Sequence, InnermostElement(GetInstanceType())));
  AddFlattened(*Result, const_cast<TOCLSequence*>(this), false);
  return Result;
}

Ref<IOCLSequence> TOCLSequence::_COLLECTOP_collect(IOCLAny*) const {
  return Empty();
}

Ref<IOCLSequence> TOCLSequence::_COLLECTOP_reject(IOCLBoolean*) const {
  return Empty();
}

Ref<IOCLSequence> TOCLSequence::_COLLECTOP_select(IOCLBoolean*) const {
  return Empty();
}

}  // namespace gello
