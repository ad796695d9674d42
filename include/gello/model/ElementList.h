#pragma once
// The ordered, name-indexed list in which scopes, classes and packages keep their elements.
#include <initializer_list>
#include <unordered_map>
#include <vector>

#include "gello/model/Interfaces.h"
#include "gello/model/NameTable.h"

namespace gello {

/// Elements in insertion order, with a case-sensitive name index where the last added name wins.
class TRTTIElementList : public virtual IRTTIElementList {
 public:
  TRTTIElementList() = default;
  TRTTIElementList(std::initializer_list<Ref<IRTTIElement>> Elements);

  int Add(const Ref<IRTTIElement>& Element) override;
  void Insert(int Index, const Ref<IRTTIElement>& Element) override;
  void Delete(int Index) override;
  void Clear() override;
  bool Exists(IRTTIElement* Element) const override;
  int IndexOf(const String& Name) const override;
  int IndexOfElement(IRTTIElement* Element) const override;
  void Include(IRTTIElementList* Other) override;
  void IncludeElement(const Ref<IRTTIElement>& Element) override;
  int GetCount() const override { return static_cast<int>(FItems.size()); }
  Ref<IRTTIElement> GetItems(int Index) const override;
  void SetItems(int Index, const Ref<IRTTIElement>& Element) override;
  Ref<IRTTIElement> GetItemByName(const String& Name) const override;
  void SetItemByName(const String& Name, const Ref<IRTTIElement>& Element) override;
  Ref<IRTTIElement> GetItemByUMLID(const String& Id) const override;
  Ref<IRTTIElementList> ItemsByName(const String& Name) const override;
  Ref<IRTTIElementList> GetSortedItems() const override;
  void Sort() override;
  void Swap(int I, int J) override;
  void Reset() override;
  void Resolve(IRTTIScope* Scope) override;
  bool GetMergeElements() const override { return FMergeElements; }
  void SetMergeElements(bool Value) override { FMergeElements = Value; }

 private:
  struct TItem {
    Ref<IRTTIElement> Element;
    // Added without a name: indexed under "" even after it was named later. Names are
    // write-once, so any other element keeps the name it was indexed under.
    bool Unnamed;
  };
  void CheckIndex(int Index, int Limit) const;
  void IndexAdd(TItem& Item);
  void IndexRemove(const TItem& Item);
  IRTTIElement* Newest(const String& Key) const;
  void SetNewest(const String& Key, IRTTIElement* Element);
  void QuickSort(int L, int R);

  std::vector<TItem> FItems;
  bool FMergeElements = false;
  // The newest element of each name answers lookups: named ones in a compact table, the
  // newest unnamed one beside it.
  TNameTable FNames;
  IRTTIElement* FUnnamed = nullptr;
  // For names held more than once: the earlier elements, oldest first.
  std::unordered_map<String, std::vector<IRTTIElement*>> FOlder;
  // UML id to the first element that has it, made on demand; an element without any id would
  // get a fresh random one, which no given id can equal, so it need not be given one here.
  void ForgetUMLIds() { FUMLValid = false; }
  mutable std::unordered_map<String, IRTTIElement*> FByUMLId;
  mutable std::uint64_t FUMLEpoch = 0;
  mutable bool FUMLValid = false;
  // How often each element is held, so that Exists and Include need not scan; kept only once
  // the list has grown past a few items, since most lists are short and scanning them is cheaper
  // than a table per list.
  static constexpr std::size_t ScanLimit = 16;
  std::unordered_map<IRTTIElement*, int> FHeld;
  bool FHeldKept = false;
};

}  // namespace gello
