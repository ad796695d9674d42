#pragma once
// Positions of a collection's elements by the hash of their value, so that membership by the
// elements' own equality does not scan the whole collection.
#include <cstddef>
#include <vector>
#include "gello/ocl/Interfaces.h"

namespace gello {

/// Numbers, texts, Booleans and types of the library's own value classes are hashed by value;
/// elements of other classes (whose equality may be anything) are kept apart and always scanned.
class TElementIndex {
 public:
  using TItems = std::vector<Ref<IOCLAny>>;
  /// One slot of the open-addressing table: a key and the position of an element carrying it.
  struct TSlot {
    std::size_t Key = 0;
    int Position = -1;  // -1 empty, -2 erased
  };

  void Insert(IOCLAny* Element, int Position);
  void Erase(IOCLAny* Element, int Position);
  void Clear();
  /// Whether some held element answers isEqual(Value).
  bool Contains(const TItems& Items, IOCLAny* Value) const;
  /// How many held elements answer isEqual(Value).
  int CountOf(const TItems& Items, IOCLAny* Value) const;
  /// The lowest position whose element answers isEqual(Value); -1 when there is none.
  int FirstOf(const TItems& Items, IOCLAny* Value) const;
  /// Positions whose element answers isEqual(Value), in no particular order.
  std::vector<int> Matches(const TItems& Items, IOCLAny* Value) const;

 private:
  void InsertKey(std::size_t Key, int Position);
  void Grow();

  std::vector<TSlot> FSlots;  // a power of two in size, at most half in use
  std::size_t FUsed = 0;      // slots holding a position or erased
  std::vector<int> FScanned;
};

}  // namespace gello
