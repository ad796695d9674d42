#pragma once
// A stack of instances, used while reading nested instance documents.
#include <cstddef>
#include <vector>
#include "gello/foundation/Export.h"
#include "gello/model/ClassInstance.h"

namespace gello {

/// Last in, first out; the array grows by 16 slots whenever it is full.
class GELLO_API TRTTIInstanceStack {
 public:
  void push(const Ref<IRTTIClassInstance>& Instance);
  /// The last pushed instance; raises on an empty stack.
  Ref<IRTTIClassInstance> pop();
  bool empty() const { return FCount == 0; }
  /// The slots allocated so far.
  std::size_t Capacity() const { return FItems.size(); }

 private:
  std::vector<Ref<IRTTIClassInstance>> FItems;
  std::size_t FCount = 0;
};

}  // namespace gello
