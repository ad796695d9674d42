#include "gello/ocl/Collection.h"

#include <algorithm>
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Iterator.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {

// Adds two elements by their own _ADD_: Integers stay Integers, other numbers become Reals.
Ref<IOCLAny> AddElements(IOCLAny* Left, IOCLAny* Right) {
  auto* LeftInt = CachedCast<IOCLInteger>(Left);
  auto* RightInt = CachedCast<IOCLInteger>(Right);
  if (LeftInt && RightInt) return LeftInt->_ADD_(RightInt);
  auto* LeftReal = CachedCast<IOCLReal>(Left);
  auto* RightReal = CachedCast<IOCLReal>(Right);
  if (LeftReal && RightReal) return LeftReal->_ADD_(RightReal);
  throw EOCLException(u"Data type can't be summed.");
}

}  // namespace

bool AnyElementOf(IOCLCollection* c, const std::function<bool(const Ref<IOCLAny>&)>& Visit) {
  if (!c) return false;
  if (auto* Own = CachedCast<TOCLCollection>(c)) return Own->AnyElement(Visit);
  for (Ref<IFastIterator> It = c->FastIterator(); !It->Advance();)
    if (Visit(It->CurrentElement())) return true;
  return false;
}

Ref<TOCLCollection> TOCLCollection::Clone() const {
  return MakeRef<TOCLCollection>(GetInstanceType());
}

Ref<TOCLCollection> TOCLCollection::Copy() const {
  Ref<TOCLCollection> Result = Clone();
  if (Held() && Result->GetInMemory() && Result->FElements.Count() == 0) {
    Result->FElements = FElements;
  } else {
    Result->AddAll(const_cast<TOCLCollection*>(this));
  }
  return Result;
}

Ref<TOCLCollection> TOCLCollection::Without(IOCLAny* e) const {
  Ref<TOCLCollection> Result = Clone();
  Result->AddWhere(const_cast<TOCLCollection*>(this),
                   [e](const Ref<IOCLAny>& Element) { return !Element || !Element->isEqual(e); });
  return Result;
}

Ref<IFastIterator> TOCLCollection::Walk() const {
  return const_cast<TOCLCollection*>(this)->FastIterator();
}

bool TOCLCollection::AnyElement(const std::function<bool(const Ref<IOCLAny>&)>& Visit) const {
  if (const TElements* Own = Held()) {
    TElementIndex::TItems Items = Own->Items();
    return std::any_of(Items.begin(), Items.end(), Visit);
  }
  for (Ref<IFastIterator> It = Walk(); !It->Advance();)
    if (Visit(It->CurrentElement())) return true;
  return false;
}

void TOCLCollection::AddAll(IOCLCollection* c) {
  AddWhere(c, [](const Ref<IOCLAny>&) { return true; });
}

void TOCLCollection::AddWhere(IOCLCollection* c,
                              const std::function<bool(const Ref<IOCLAny>&)>& Keep) {
  AnyElementOf(c, [&](const Ref<IOCLAny>& Element) {
    if (Keep(Element)) Add(Element);
    return false;
  });
}

String TOCLCollection::ListText(const String& Opening) const {
  String Result = Opening;
  int Written = 0;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    if (Written > 20) {
      Result += u"...";
      return true;
    }
    if (Written++ > 0) Result += u",";
    Result += Element ? Element->GetasString() : u"null";
    return false;
  });
  return Result + u"}";
}

TJSON TOCLCollection::ElementsJSON(bool Compact) const {
  TJSON Result = TJSON::array();
  AnyElement([&](const Ref<IOCLAny>& Element) {
    if (!Element)
      Result.push_back(nullptr);
    else
      Result.push_back(Compact ? Element->GetasCompactJSON() : Element->GetasJSON());
    return false;
  });
  return Result;
}

TJSON TOCLCollection::GetasJSON() const {
  TJSON Result = TOCLAny::GetasJSON();
  Result[".value"] = ElementsJSON(false);
  return Result;
}

TJSON TOCLCollection::GetasCompactJSON() const {
  return ElementsJSON(true);
}

String TOCLCollection::GetasString() const {
  return u"(Collection:" + HostClassName() + u")";
}

bool TOCLCollection::isEqual(IOCLAny*) const {
  throw EOCLException(u"comparison of untyped collections is undefined.");
}

void TOCLCollection::Add(const Ref<IOCLAny>& Value) {
  FElements.Append(Value);
}

void TOCLCollection::SetCount(int Value) {
  FElements.Resize(Value);
}

void TOCLCollection::SetItems(int Index, const Ref<IOCLAny>& Value) {
  FElements.Store(Index, Value);
}

int TOCLCollection::GetCount() const {
  if (GetInMemory()) return FElements.Count();
  int Count = 0;
  for (Ref<IFastIterator> It = Walk(); !It->Advance();)
    ++Count;
  return Count;
}

Ref<IOCLAny> TOCLCollection::GetItems(int Index) const {
  if (GetInMemory()) return FElements.At(Index);
  Ref<IFastIterator> It = Walk();
  for (int i = 0; i <= Index; ++i)
    if (It->Advance()) break;
  return It->CurrentElement();
}

Ref<IFastIterator> TOCLCollection::FastIterator() {
  if (!GetInMemory())
    throw EOCLException(HostClassName() + u" must override FastIterator method for external data.");
  return MakeRef<TFastIterator>(Ref<IOCLCollection>(this));
}

Ref<IOCLIterator> TOCLCollection::Iterator(IOCLBoolean*) {
  if (!GetInMemory())
    throw EOCLException(HostClassName() + u" must override Iterator method for external data.");
  return MakeRef<TOCLIterator>(Ref<TOCLCollection>(this));
}

bool TOCLCollection::Exists(IOCLAny* o) const {
  if (GetInMemory()) return FElements.Contains(o);
  return AnyElement([o](const Ref<IOCLAny>& Element) { return Element && Element->isEqual(o); });
}

Ref<IOCLBoolean> TOCLCollection::includes(IOCLAny* o) const {
  return TOCLBoolean::BooleanValue(Exists(o));
}

Ref<IOCLBoolean> TOCLCollection::excludes(IOCLAny* o) const {
  return TOCLBoolean::BooleanValue(!Exists(o));
}

Ref<IOCLBoolean> TOCLCollection::includesAll(IOCLCollection* c) const {
  bool Missed =
      AnyElementOf(c, [this](const Ref<IOCLAny>& Element) { return !Exists(Element.get()); });
  return TOCLBoolean::BooleanValue(!Missed);
}

Ref<IOCLBoolean> TOCLCollection::excludesAll(IOCLCollection* c) const {
  bool Hit = AnyElementOf(c, [this](const Ref<IOCLAny>& Element) { return Exists(Element.get()); });
  return TOCLBoolean::BooleanValue(!Hit);
}

Ref<IOCLInteger> TOCLCollection::_count_(IOCLAny* o) const {
  if (GetInMemory()) return MakeRef<TOCLInteger>(FElements.CountOf(o));
  std::int64_t Count = 0;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    if (Element && Element->isEqual(o)) ++Count;
    return false;
  });
  return MakeRef<TOCLInteger>(Count);
}

Ref<IOCLBoolean> TOCLCollection::isEmpty() const {
  if (GetInMemory()) return TOCLBoolean::BooleanValue(FElements.Count() == 0);
  return TOCLBoolean::BooleanValue(Walk()->AtEnd());
}

Ref<IOCLBoolean> TOCLCollection::notEmpty() const {
  if (GetInMemory()) return TOCLBoolean::BooleanValue(FElements.Count() >= 1);
  return TOCLBoolean::BooleanValue(!Walk()->AtEnd());
}

Ref<IOCLInteger> TOCLCollection::size() const {
  return MakeRef<TOCLInteger>(GetCount());
}

void TOCLCollection::iterate(Ref<IOCLAny>& element, Ref<IOCLAny>& accumulator,
                             std::int32_t thunk_addr, IGelloVM* vm) {
  if (!vm) throw EOCLException(u"iterate needs an evaluator");
  for (Ref<IFastIterator> It = FastIterator(); !It->Advance();) {
    element = It->CurrentElement();
    accumulator = vm->EvaluateBody(thunk_addr, element.get(), accumulator.get());
  }
}

Ref<IOCLSequence> TOCLCollection::sort() const {
  auto Result = MakeRef<TOCLSequence>(OCLSystemClasses().Sequence);
  Result->AddAll(const_cast<TOCLCollection*>(this));
  Result->InternalSort();
  return Result;
}

void TOCLCollection::InternalSort() {
  FElements.Sort([](const Ref<IOCLAny>& Left, const Ref<IOCLAny>& Right) {
    return Left && Left->_LessThan(Right.get());
  });
}

Ref<IOCLAny> TOCLCollection::sum() const {
  Ref<IOCLAny> Total;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    Total = Total ? AddElements(Total.get(), Element.get()) : Element;
    return false;
  });
  if (!Total) return MakeRef<TOCLAny>(TUndefined{u"sum of an empty collection"});
  return Total;
}

Ref<IOCLBoolean> TOCLCollection::_COLLECTOP_exists(IOCLBoolean*) const {
  return TOCLBoolean::BooleanValue(false);
}

Ref<IOCLBoolean> TOCLCollection::_COLLECTOP_forAll(IOCLBoolean*) const {
  return TOCLBoolean::BooleanValue(false);
}

Ref<IOCLSequence> TOCLCollection::_COLLECTOP_sortedBy(IOCLAny*) const {
  return MakeRef<TOCLSequence>(GetInstanceType());
}

Ref<IOCLBoolean> TOCLCollection::_EQ_(IOCLCollection* o) const {
  return TOCLBoolean::BooleanValue(isEqual(o));
}

Ref<IOCLBoolean> TOCLCollection::_NE_(IOCLCollection* o) const {
  return TOCLBoolean::BooleanValue(!isEqual(o));
}

}  // namespace gello
