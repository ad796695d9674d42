#pragma once
// The held elements of a collection, as versions of a store that successive appends share.
#include <functional>
#include "gello/foundation/Export.h"
#include "gello/ocl/ElementIndex.h"

namespace gello {

class TElementStore;

/// One version of a collection's elements: a length of a store shared with the versions it was
/// copied from. A copy costs nothing; the version that appended last appends in place, any other
/// moves to a store of its own first, so no version ever sees another's change.
class GELLO_API TElements {
 public:
  using TLess = std::function<bool(const Ref<IOCLAny>&, const Ref<IOCLAny>&)>;

  TElements();
  TElements(const TElements& Other);
  TElements& operator=(const TElements& Other);
  ~TElements();

  int Count() const { return FCount; }
  TElementIndex::TItems Items() const;
  /// The element at Index; none when out of range.
  Ref<IOCLAny> At(int Index) const;
  /// Whether some element answers isEqual(Value).
  bool Contains(IOCLAny* Value) const { return Index().Contains(Items(), Value); }
  /// How many elements answer isEqual(Value).
  int CountOf(IOCLAny* Value) const { return Index().CountOf(Items(), Value); }
  /// The lowest position whose element answers isEqual(Value); -1 when there is none.
  int FirstOf(IOCLAny* Value) const { return Index().FirstOf(Items(), Value); }
  /// Positions whose element answers isEqual(Value), in no particular order.
  std::vector<int> Matches(IOCLAny* Value) const { return Index().Matches(Items(), Value); }

  void Append(const Ref<IOCLAny>& Value);
  /// Stores at Index, growing with nil elements when Index lies past the end.
  void Store(int Index, const Ref<IOCLAny>& Value);
  /// New elements are nil.
  void Resize(int Count);
  /// Stable sort by Less.
  void Sort(const TLess& Less);

 private:
  const TElementIndex& Index() const;
  /// Makes the store this version's alone, with room for Capacity elements.
  TElementStore& Own(std::size_t Capacity);

  Ref<TElementStore> FStore;
  int FCount = 0;
};

}  // namespace gello
