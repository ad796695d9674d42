#pragma once
// Positions of a collection's elements by the hash of their value, so that membership by the
// elements' own equality does not scan the whole collection.
#include <atomic>
#include <cstddef>
#include <memory>
#include <span>
#include <vector>
#include "gello/foundation/Export.h"
#include "gello/ocl/Interfaces.h"

namespace gello {

/// Numbers, texts, Booleans and types of the library's own value classes are hashed by value;
/// elements of other classes (whose equality may be anything) are kept apart and always scanned.
/// The table never grows: readers of shorter versions may probe it while one writer inserts.
class GELLO_API TElementIndex {
 public:
  /// The elements of one version; entries for positions past its end belong to later versions.
  using TItems = std::span<const Ref<IOCLAny>>;
  /// One slot of the open-addressing table: a key and the position of an element carrying it.
  struct TSlot {
    std::atomic<std::size_t> Key{0};
    std::atomic<int> Position{-1};  // -1 empty, -2 erased
  };

  /// Room for Capacity elements, holding the entries of From (if any) for positions below Count.
  explicit TElementIndex(const TElementIndex* From = nullptr, int Count = 0,
                         std::size_t Capacity = 0);
  TElementIndex(const TElementIndex&) = delete;
  TElementIndex& operator=(const TElementIndex&) = delete;

  /// Whether one more element fits without outgrowing the table.
  bool HasRoom() const;
  void Insert(IOCLAny* Element, int Position);
  void Erase(IOCLAny* Element, int Position);
  void Clear();
  /// Whether some element of Items answers isEqual(Value).
  bool Contains(TItems Items, IOCLAny* Value) const;
  /// How many elements of Items answer isEqual(Value).
  int CountOf(TItems Items, IOCLAny* Value) const;
  /// The lowest position whose element answers isEqual(Value); -1 when there is none.
  int FirstOf(TItems Items, IOCLAny* Value) const;
  /// Positions whose element answers isEqual(Value), in no particular order.
  std::vector<int> Matches(TItems Items, IOCLAny* Value) const;

 private:
  template <class F>
  void ForEachMatch(TItems Items, IOCLAny* Value, F Visit) const;
  void InsertKey(std::size_t Key, int Position);

  std::size_t FSize;  // table slots: a power of two, at most half in use
  std::unique_ptr<TSlot[]> FSlots;
  std::size_t FUsed = 0;  // slots holding a position or erased
  std::size_t FCapacity;
  std::unique_ptr<int[]> FScanned;  // positions of unhashed elements
  std::atomic<std::size_t> FScannedCount{0};
};

}  // namespace gello
