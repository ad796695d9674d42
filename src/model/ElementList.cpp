#include "gello/model/ElementList.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

#include "gello/foundation/Exceptions.h"
#include "gello/model/Element.h"
#include "gello/model/NameTable.h"

namespace gello {

// The tables of a long list: the newest element of each name (named ones in a compact table, the
// newest unnamed one beside it) and the earlier elements of names held more than once, oldest
// first.
struct TRTTIElementList::TIndex {
  TNameTable Names;
  IRTTIElement* Unnamed = nullptr;
  std::unordered_map<String, std::vector<IRTTIElement*>> Older;

  IRTTIElement* Newest(const String& Key) const { return Key.empty() ? Unnamed : Names.Find(Key); }

  void SetNewest(const String& Key, IRTTIElement* Element) {
    if (Key.empty())
      Unnamed = Element;
    else if (Element)
      Names.Put(Element);
    else
      Names.Erase(Key);
  }

  void Add(const String& Key, IRTTIElement* Element) {
    if (IRTTIElement* Earlier = Newest(Key)) Older[Key].push_back(Earlier);
    SetNewest(Key, Element);
  }

  // Names are written once, so an element is filed under its name, or under none when it had
  // none as it was added.
  bool Holds(IRTTIElement* Element) const {
    return Holds(Element->GetName(), Element) || Holds(String(), Element);
  }

  bool Holds(const String& Key, IRTTIElement* Element) const {
    if (Newest(Key) == Element) return true;
    auto Earlier = Older.find(Key);
    return Earlier != Older.end() && std::find(Earlier->second.begin(), Earlier->second.end(),
                                               Element) != Earlier->second.end();
  }

  void Remove(const String& Key, IRTTIElement* Element) {
    auto Earlier = Older.find(Key);
    if (Earlier == Older.end()) {
      SetNewest(Key, nullptr);  // the last of its name
      return;
    }
    std::vector<IRTTIElement*>& Elements = Earlier->second;
    if (Newest(Key) == Element) {
      SetNewest(Key, Elements.back());
      Elements.pop_back();
    } else {
      Elements.erase(std::find(Elements.rbegin(), Elements.rend(), Element).base() - 1);
    }
    if (Elements.empty()) Older.erase(Earlier);
  }
};

// An element without any UML id would get a fresh random one, which no given id can equal, so
// it need not be given one here.
struct TRTTIElementList::TUMLIndex {
  std::unordered_map<String, IRTTIElement*> ById;
  std::uint64_t Epoch = 0;
  bool Valid = false;
};

TRTTIElementList::TRTTIElementList() = default;

TRTTIElementList::~TRTTIElementList() = default;

TRTTIElementList::TRTTIElementList(std::initializer_list<Ref<IRTTIElement>> Elements) {
  for (const Ref<IRTTIElement>& Element : Elements)
    Add(Element);
}

const String& TRTTIElementList::KeyOf(const TItem& Item) {
  static const String Unnamed;
  return Item.Unnamed ? Unnamed : Item.Element->GetName();
}

void TRTTIElementList::CheckIndex(int Index, int Limit) const {
  if (Index < 0 || Index >= Limit)
    throw Exception(u"List index out of bounds (" + IntToStr(Index) + u")");
}

TRTTIElementList::TItem TRTTIElementList::NewItem(const Ref<IRTTIElement>& Element) {
  GELLO_ASSERT(Element, u"Adding null element to list");
  if (FAdded == UINT32_MAX) Renumber();
  return TItem{Element, Element->GetName().empty(), FAdded++};
}

void TRTTIElementList::ForgetUMLIds() {
  if (FUMLIds) FUMLIds->Valid = false;
}

// The positions of the items, oldest first.
std::vector<std::size_t> TRTTIElementList::ByAge() const {
  std::vector<std::size_t> Result(FItems.size());
  std::iota(Result.begin(), Result.end(), 0);
  std::sort(Result.begin(), Result.end(),
            [this](std::size_t A, std::size_t B) { return FItems[A].Added < FItems[B].Added; });
  return Result;
}

void TRTTIElementList::BuildIndex() {
  FIndex = std::make_unique<TIndex>();
  for (std::size_t i : ByAge())
    FIndex->Add(KeyOf(FItems[i]), FItems[i].Element.get());
}

// The count of additions has run out: the items keep their order of age under fresh numbers.
void TRTTIElementList::Renumber() {
  FAdded = 0;
  for (std::size_t i : ByAge())
    FItems[i].Added = FAdded++;
}

// Called once Item is in FItems.
void TRTTIElementList::IndexAdd(const TItem& Item) {
  ForgetUMLIds();
  if (FIndex)
    FIndex->Add(KeyOf(Item), Item.Element.get());
  else if (FItems.size() > ScanLimit)
    BuildIndex();
}

// Called while Item is still in FItems.
void TRTTIElementList::IndexRemove(const TItem& Item) {
  ForgetUMLIds();
  if (FIndex) FIndex->Remove(KeyOf(Item), Item.Element.get());
}

bool TRTTIElementList::IsKeyed(const TItem& Item, const String& Key) {
  return Key.empty() ? Item.Unnamed : !Item.Unnamed && Item.Element->GetName() == Key;
}

IRTTIElement* TRTTIElementList::Newest(const String& Key) const {
  if (FIndex) return FIndex->Newest(Key);
  const TItem* Found = nullptr;
  for (const TItem& Item : FItems)
    if (IsKeyed(Item, Key) && (!Found || Item.Added > Found->Added)) Found = &Item;
  return Found ? Found->Element.get() : nullptr;
}

int TRTTIElementList::Add(const Ref<IRTTIElement>& Element) {
  FItems.push_back(NewItem(Element));
  IndexAdd(FItems.back());
  return GetCount() - 1;
}

void TRTTIElementList::Insert(int Index, const Ref<IRTTIElement>& Element) {
  CheckIndex(Index, GetCount() + 1);
  IndexAdd(*FItems.insert(FItems.begin() + Index, NewItem(Element)));
}

void TRTTIElementList::Delete(int Index) {
  CheckIndex(Index, GetCount());
  IndexRemove(FItems[Index]);
  FItems.erase(FItems.begin() + Index);
}

void TRTTIElementList::Clear() {
  FItems.clear();
  FIndex.reset();
  ForgetUMLIds();
}

bool TRTTIElementList::Exists(IRTTIElement* Element) const {
  if (FIndex) return Element && FIndex->Holds(Element);
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
  TItem Item = NewItem(Element);
  IndexRemove(FItems[Index]);
  FItems[Index] = std::move(Item);
  IndexAdd(FItems[Index]);
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
  if (!FUMLIds) FUMLIds = std::make_unique<TUMLIndex>();
  TUMLIndex& Ids = *FUMLIds;
  if (!Ids.Valid || Ids.Epoch != UMLIdEpoch()) {
    Ids.ById.clear();
    for (const TItem& Item : FItems) {
      String Own = Item.Element->PeekUML_ID();
      if (!Own.empty()) Ids.ById.try_emplace(std::move(Own), Item.Element.get());
    }
    Ids.Epoch = UMLIdEpoch();
    Ids.Valid = true;
  }
  auto Found = Ids.ById.find(Id);
  return Found == Ids.ById.end() ? nullptr : Ref<IRTTIElement>(Found->second);
}

Ref<IRTTIElementList> TRTTIElementList::ItemsByName(const String& Name) const {
  auto Result = MakeRef<TRTTIElementList>();
  AnyNamed(Name, [&](IRTTIElement& Element) {
    Result->Add(Ref<IRTTIElement>(&Element));
    return false;
  });
  return Result;
}

bool TRTTIElementList::AnyNamed(const String& Name, TFunctionRef<bool(IRTTIElement&)> Visit) const {
  if (!FIndex) return AnyNamedByAge(Name, Visit);
  IRTTIElement* Last = FIndex->Newest(Name);
  if (!Last) return false;
  if (auto Older = FIndex->Older.find(Name); Older != FIndex->Older.end())
    for (IRTTIElement* Element : Older->second)
      if (Visit(*Element)) return true;
  return Visit(*Last);
}

// A list short enough to go without an index: the next older match is found by a scan each time.
bool TRTTIElementList::AnyNamedByAge(const String& Name,
                                     TFunctionRef<bool(IRTTIElement&)> Visit) const {
  const TItem* Previous = nullptr;
  for (;;) {
    const TItem* Next = nullptr;
    for (const TItem& Item : FItems)
      if (IsKeyed(Item, Name) && (!Previous || Item.Added > Previous->Added) &&
          (!Next || Item.Added < Next->Added))
        Next = &Item;
    if (!Next) return false;
    if (Visit(*Next->Element)) return true;
    Previous = Next;
  }
}

Ref<IRTTIElementList> TRTTIElementList::GetSortedItems() const {
  // The index order: by name, and among equal names the last added first.
  std::vector<const TItem*> Sorted;
  for (const TItem& Item : FItems)
    Sorted.push_back(&Item);
  std::sort(Sorted.begin(), Sorted.end(), [](const TItem* A, const TItem* B) {
    const int Order = KeyOf(*A).compare(KeyOf(*B));
    return Order != 0 ? Order < 0 : A->Added > B->Added;
  });
  auto Result = MakeRef<TRTTIElementList>();
  for (const TItem* Item : Sorted)
    Result->Add(Item->Element);
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
