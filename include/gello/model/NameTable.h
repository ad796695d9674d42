#pragma once
// A compact hash table of named elements, keyed by the elements' own (write-once) names.
#include <cstddef>
#include <vector>
#include "gello/foundation/Export.h"

#include "gello/model/Interfaces.h"

namespace gello {

/// Name to one element, by open addressing: a lookup probes one short run of 16-byte slots and
/// then reads the name of the element it finds. Holds no references; empty names are not kept.
class GELLO_API TNameTable {
 public:
  /// The element named Name, or null.
  IRTTIElement* Find(const String& Name) const;
  /// Files Element under its name; returns the element it displaces there, or null.
  IRTTIElement* Put(IRTTIElement* Element);
  /// Removes the entry of Name, if any.
  void Erase(const String& Name);
  void Clear();
  /// How many elements it holds.
  std::size_t Count() const { return FCount; }

 private:
  struct TSlot {
    std::size_t Hash = 0;
    IRTTIElement* Element = nullptr;  // null: free
  };
  std::size_t Locate(const String& Name, std::size_t Hash) const;
  void Grow();

  std::vector<TSlot> FSlots;  // a power of two in size, at most half full
  std::size_t FCount = 0;
};

}  // namespace gello
