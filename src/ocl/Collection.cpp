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
  auto* LeftInt = dynamic_cast<IOCLInteger*>(Left);
  auto* RightInt = dynamic_cast<IOCLInteger*>(Right);
  if (LeftInt && RightInt) return LeftInt->_ADD_(RightInt);
  auto* LeftReal = dynamic_cast<IOCLReal*>(Left);
  auto* RightReal = dynamic_cast<IOCLReal*>(Right);
  if (LeftReal && RightReal) return LeftReal->_ADD_(RightReal);
  throw EOCLException(u"Data type can't be summed.");
}

}  // namespace

bool AnyElementOf(IOCLCollection* c, const std::function<bool(const Ref<IOCLAny>&)>& Visit) {
  if (!c) return false;
  if (auto* Own = dynamic_cast<TOCLCollection*>(c)) return Own->AnyElement(Visit);
  for (Ref<IFastIterator> It = c->FastIterator(); !It->Advance();)
    if (Visit(It->CurrentElement())) return true;
  return false;
}

Ref<TOCLCollection> TOCLCollection::Clone() const {
  return MakeRef<TOCLCollection>(GetInstanceType());
}

Ref<TOCLCollection> TOCLCollection::Copy() const {
  Ref<TOCLCollection> Result = Clone();
  // Held elements copy with their index at once, without hashing them again.
  if (HeldItems() && Result->GetInMemory() && Result->TOCLMemInstance::GetCount() == 0) {
    Result->Items() = Items();
    Result->FIndex = FIndex;
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

const std::vector<Ref<IOCLAny>>* TOCLCollection::HeldItems() const {
  return GetInMemory() ? &Items() : nullptr;
}

Ref<IFastIterator> TOCLCollection::Walk() const {
  return const_cast<TOCLCollection*>(this)->FastIterator();
}

bool TOCLCollection::AnyElement(const std::function<bool(const Ref<IOCLAny>&)>& Visit) const {
  if (const auto* Held = HeldItems()) return std::any_of(Held->begin(), Held->end(), Visit);
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

String TOCLCollection::GetasString() const {
  return u"(Collection:" + HostClassName() + u")";
}

bool TOCLCollection::isEqual(IOCLAny*) const {
  throw EOCLException(u"comparison of untyped collections is undefined.");
}

void TOCLCollection::Add(const Ref<IOCLAny>& Value) {
  FIndex.Insert(Value.get(), TOCLMemInstance::GetCount());
  Items().push_back(Value);
}

void TOCLCollection::SetCount(int Value) {
  TOCLMemInstance::SetCount(Value);
  Reindex();
}

void TOCLCollection::SetItems(int Index, const Ref<IOCLAny>& Value) {
  if (Index < 0) return;
  if (Index < TOCLMemInstance::GetCount())
    FIndex.Erase(TOCLMemInstance::GetItems(Index).get(), Index);
  TOCLMemInstance::SetItems(Index, Value);
  FIndex.Insert(Value.get(), Index);
}

void TOCLCollection::Reindex() {
  FIndex.Clear();
  for (int i = 0; i < TOCLMemInstance::GetCount(); ++i)
    FIndex.Insert(Items()[static_cast<std::size_t>(i)].get(), i);
}

int TOCLCollection::GetCount() const {
  if (GetInMemory()) return TOCLMemInstance::GetCount();
  int Count = 0;
  for (Ref<IFastIterator> It = Walk(); !It->Advance();)
    ++Count;
  return Count;
}

Ref<IOCLAny> TOCLCollection::GetItems(int Index) const {
  if (GetInMemory()) return TOCLMemInstance::GetItems(Index);
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
  if (const auto* Held = HeldItems()) return FIndex.Contains(*Held, o);
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
  if (const auto* Held = HeldItems()) return MakeRef<TOCLInteger>(FIndex.CountOf(*Held, o));
  std::int64_t Count = 0;
  AnyElement([&](const Ref<IOCLAny>& Element) {
    if (Element && Element->isEqual(o)) ++Count;
    return false;
  });
  return MakeRef<TOCLInteger>(Count);
}

Ref<IOCLBoolean> TOCLCollection::isEmpty() const {
  if (GetInMemory()) return TOCLBoolean::BooleanValue(TOCLMemInstance::GetCount() == 0);
  return TOCLBoolean::BooleanValue(Walk()->AtEnd());
}

Ref<IOCLBoolean> TOCLCollection::notEmpty() const {
  if (GetInMemory()) return TOCLBoolean::BooleanValue(TOCLMemInstance::GetCount() >= 1);
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
  std::stable_sort(Items().begin(), Items().end(),
                   [](const Ref<IOCLAny>& Left, const Ref<IOCLAny>& Right) {
                     return Left && Left->_LessThan(Right.get());
                   });
  Reindex();
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
