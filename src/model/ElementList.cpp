#include "gello/model/ElementList.h"

#include <algorithm>
#include <map>

#include "gello/foundation/Exceptions.h"
#include "gello/model/Element.h"

namespace gello {

TRTTIElementList::TRTTIElementList(std::initializer_list<Ref<IRTTIElement>> Elements) {
  for (const Ref<IRTTIElement>& Element : Elements)
    Add(Element);
}

void TRTTIElementList::CheckIndex(int Index, int Limit) const {
  if (Index < 0 || Index >= Limit)
    throw Exception(u"List index out of bounds (" + IntToStr(Index) + u")");
}

IRTTIElement* TRTTIElementList::Newest(const String& Key) const {
  return Key.empty() ? FUnnamed : FNames.Find(Key);
}

void TRTTIElementList::SetNewest(const String& Key, IRTTIElement* Element) {
  if (Key.empty())
    FUnnamed = Element;
  else if (Element)
    FNames.Put(Element);
  else
    FNames.Erase(Key);
}

void TRTTIElementList::IndexAdd(TItem& Item) {
  GELLO_ASSERT(Item.Element, u"Adding null element to list");
  ForgetUMLIds();
  IRTTIElement* Element = Item.Element.get();
  const String& Key = Element->GetName();
  Item.Unnamed = Key.empty();
  if (IRTTIElement* Earlier = Newest(Key)) FOlder[Key].push_back(Earlier);
  SetNewest(Key, Element);
  if (!FHeldKept && FItems.size() >= ScanLimit) {
    for (const TItem& Held : FItems)
      ++FHeld[Held.Element.get()];
    FHeldKept = true;
  }
  if (FHeldKept) ++FHeld[Element];
}

void TRTTIElementList::IndexRemove(const TItem& Item) {
  ForgetUMLIds();
  IRTTIElement* Element = Item.Element.get();
  if (FHeldKept) {
    auto Held = FHeld.find(Element);
    if (--Held->second == 0) FHeld.erase(Held);
  }
  const String Key = Item.Unnamed ? String() : Element->GetName();
  auto Older = FOlder.find(Key);
  if (Older == FOlder.end()) {
    SetNewest(Key, nullptr);  // the last of its name
    return;
  }
  std::vector<IRTTIElement*>& Earlier = Older->second;
  if (Newest(Key) == Element) {
    SetNewest(Key, Earlier.back());
    Earlier.pop_back();
  } else {
    Earlier.erase(std::find(Earlier.rbegin(), Earlier.rend(), Element).base() - 1);
  }
  if (Earlier.empty()) FOlder.erase(Older);
}

int TRTTIElementList::Add(const Ref<IRTTIElement>& Element) {
  TItem Item{Element, false};
  IndexAdd(Item);
  FItems.push_back(std::move(Item));
  return GetCount() - 1;
}

void TRTTIElementList::Insert(int Index, const Ref<IRTTIElement>& Element) {
  CheckIndex(Index, GetCount() + 1);
  TItem Item{Element, false};
  IndexAdd(Item);
  FItems.insert(FItems.begin() + Index, std::move(Item));
}

void TRTTIElementList::Delete(int Index) {
  CheckIndex(Index, GetCount());
  IndexRemove(FItems[Index]);
  FItems.erase(FItems.begin() + Index);
}

void TRTTIElementList::Clear() {
  FItems.clear();
  ForgetUMLIds();
  FNames.Clear();
  FUnnamed = nullptr;
  FOlder.clear();
  FHeld.clear();
  FHeldKept = false;
}

bool TRTTIElementList::Exists(IRTTIElement* Element) const {
  if (FHeldKept) return FHeld.contains(Element);
  return std::any_of(FItems.begin(), FItems.end(),
                     [Element](const TItem& Item) { return Item.Element.get() == Element; });
}

int TRTTIElementList::IndexOf(const String& Name) const {
  Ref<IRTTIElement> Element = GetItemByName(Name);
  return Element ? IndexOfElement(Element.get()) : -1;
}

int TRTTIElementList::IndexOfElement(IRTTIElement* Element) const {
  if (!Exists(Element)) return -1;
  for (int i = 0; i < GetCount(); ++i)
    if (FItems[i].Element.get() == Element) return i;
  return -1;
}

void TRTTIElementList::Include(IRTTIElementList* Other) {
  if (!Other) return;
  for (int i = 0; i < Other->GetCount(); ++i)
    IncludeElement(Other->GetItems(i));
}

void TRTTIElementList::IncludeElement(const Ref<IRTTIElement>& Element) {
  if (!Exists(Element.get())) Add(Element);
}

Ref<IRTTIElement> TRTTIElementList::GetItems(int Index) const {
  CheckIndex(Index, GetCount());
  return FItems[Index].Element;
}

void TRTTIElementList::SetItems(int Index, const Ref<IRTTIElement>& Element) {
  CheckIndex(Index, GetCount());
  TItem Item{Element, false};
  IndexAdd(Item);
  IndexRemove(FItems[Index]);
  FItems[Index] = std::move(Item);
}

Ref<IRTTIElement> TRTTIElementList::GetItemByName(const String& Name) const {
  return Ref<IRTTIElement>(Newest(Name));
}

void TRTTIElementList::SetItemByName(const String& Name, const Ref<IRTTIElement>& Element) {
  const int Index = IndexOf(Name);
  if (Index >= 0)
    SetItems(Index, Element);
  else
    Add(Element);
}

Ref<IRTTIElement> TRTTIElementList::GetItemByUMLID(const String& Id) const {
  if (!FUMLValid || FUMLEpoch != UMLIdEpoch()) {
    FByUMLId.clear();
    for (const TItem& Item : FItems) {
      String Own = Item.Element->PeekUML_ID();
      if (!Own.empty()) FByUMLId.try_emplace(std::move(Own), Item.Element.get());
    }
    FUMLEpoch = UMLIdEpoch();
    FUMLValid = true;
  }
  auto Found = FByUMLId.find(Id);
  return Found == FByUMLId.end() ? nullptr : Ref<IRTTIElement>(Found->second);
}

Ref<IRTTIElementList> TRTTIElementList::ItemsByName(const String& Name) const {
  auto Result = MakeRef<TRTTIElementList>();
  IRTTIElement* Last = Newest(Name);
  if (!Last) return Result;
  if (auto Older = FOlder.find(Name); Older != FOlder.end())
    for (IRTTIElement* Element : Older->second)
      Result->Add(Ref<IRTTIElement>(Element));
  Result->Add(Ref<IRTTIElement>(Last));
  return Result;
}

Ref<IRTTIElementList> TRTTIElementList::GetSortedItems() const {
  // The index order: by name, and among equal names the last added first.
  std::map<String, IRTTIElement*> Sorted;
  for (IRTTIElement* Element : FNames.Elements())
    Sorted.emplace(Element->GetName(), Element);
  if (FUnnamed) Sorted.emplace(String(), FUnnamed);
  auto Result = MakeRef<TRTTIElementList>();
  for (const auto& [Name, Last] : Sorted) {
    Result->Add(Ref<IRTTIElement>(Last));
    if (auto Older = FOlder.find(Name); Older != FOlder.end())
      for (auto It = Older->second.rbegin(); It != Older->second.rend(); ++It)
        Result->Add(Ref<IRTTIElement>(*It));
  }
  return Result;
}

void TRTTIElementList::Sort() {
  if (GetCount() > 1) QuickSort(0, GetCount() - 1);
}

void TRTTIElementList::QuickSort(int L, int R) {
  int I = L;
  do {
    I = L;
    int J = R;
    const String Pivot = FItems[(L + R) / 2].Element->GetName();
    do {
      while (FItems[I].Element->GetName() < Pivot)
        ++I;
      while (FItems[J].Element->GetName() > Pivot)
        --J;
      if (I <= J) {
        Swap(I, J);
        ++I;
        --J;
      }
    } while (I <= J);
    if (L < J) QuickSort(L, J);
    L = I;
  } while (I < R);
}

void TRTTIElementList::Swap(int I, int J) {
  CheckIndex(I, GetCount());
  CheckIndex(J, GetCount());
  std::swap(FItems[I], FItems[J]);
  ForgetUMLIds();  // the first holder of an id may have moved
}

void TRTTIElementList::Reset() {
  // Take the items out first: clearing an element may reach back into this list.
  std::vector<TItem> Items = std::move(FItems);
  Clear();
  for (TItem& Item : Items)
    Item.Element->Clear();
}

void TRTTIElementList::Resolve(IRTTIScope* Scope) {
  for (int i = 0; i < GetCount(); ++i) {
    const Ref<IRTTIElement> Element = FItems[i].Element;  // resolving may change the list
    Element->Resolve(Scope);
  }
}

}  // namespace gello
