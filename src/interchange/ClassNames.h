#pragma once
// The classes that one read has turned type names into, by their UTF-8 names.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "gello/model/Interfaces.h"

namespace gello::forms {

/// Name to class by open addressing over one block of name bytes: a large model asks for the
/// same few thousand names hundreds of thousands of times, so a look-up should touch one slot
/// and one run of bytes.
class TClassNames {
 public:
  /// The class filed under Name, or an empty reference; valid until the next Add.
  const Ref<IRTTIClass>& Find(std::string_view Name) const;
  /// Files Class under Name, which is not filed yet, and holds it; answers the reference kept.
  const Ref<IRTTIClass>& Add(std::string_view Name, const Ref<IRTTIClass>& Class);

 private:
  struct TSlot {
    std::size_t Hash = 0;
    std::uint32_t Offset = 0;
    std::uint32_t Length = 0;
    Ref<IRTTIClass> Class;  // empty: free
  };
  std::size_t Locate(std::string_view Name, std::size_t Hash) const;
  void Grow();

  std::vector<TSlot> FSlots;  // a power of two in size, at most half full
  std::string FNames;         // every name filed, one after another
  std::size_t FCount = 0;
};

}  // namespace gello::forms
