#pragma once
// The ordered, name-indexed list in which scopes, classes and packages keep their elements.
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <vector>
#include "gello/foundation/Export.h"

#include "gello/model/Interfaces.h"

namespace gello {

/// Elements in insertion order, with a case-sensitive name index where the last added name wins.
class GELLO_API TRTTIElementList : public virtual IRTTIElementList {
 public:
  TRTTIElementList();
  ~TRTTIElementList() override;
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
  bool AnyNamed(const String& Name, TFunctionRef<bool(IRTTIElement&)> Visit) const override;
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
    // When it was added: among elements of one name, the newest answers lookups.
    std::uint32_t Added;
  };
  struct TIndex;
  struct TUMLIndex;
  static const String& KeyOf(const TItem& Item);
  static bool IsKeyed(const TItem& Item, const String& Key);
  void CheckIndex(int Index, int Limit) const;
  TItem NewItem(const Ref<IRTTIElement>& Element);
  void IndexAdd(const TItem& Item);
  void IndexRemove(const TItem& Item);
  void BuildIndex();
  void Renumber();
  std::vector<std::size_t> ByAge() const;
  IRTTIElement* Newest(const String& Key) const;
  bool AnyNamedByAge(const String& Name, TFunctionRef<bool(IRTTIElement&)> Visit) const;
  void ForgetUMLIds();
  void QuickSort(int L, int R);

  std::vector<TItem> FItems;
  std::uint32_t FAdded = 0;
  bool FMergeElements = false;
  // Most lists are short, and scanning them is cheaper than tables per list: the name and
  // membership tables are kept only once a list has grown past ScanLimit items.
  static constexpr std::size_t ScanLimit = 16;
  std::unique_ptr<TIndex> FIndex;
  // UML id to the first element that has it, made on demand.
  mutable std::unique_ptr<TUMLIndex> FUMLIds;
};

}  // namespace gello
