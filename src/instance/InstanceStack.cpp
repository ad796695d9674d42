#include "gello/instance/InstanceStack.h"

#include "gello/foundation/Exceptions.h"

namespace gello {

void TRTTIInstanceStack::push(const Ref<IRTTIClassInstance>& Instance) {
  if (FCount == FItems.size()) FItems.resize(FItems.size() + 16);
  FItems[FCount++] = Instance;
}

Ref<IRTTIClassInstance> TRTTIInstanceStack::pop() {
  if (FCount == 0) throw Exception(u" trying to pop from empty RTTI instance stack.");
  // Clear the slot so the stack does not keep the instance alive.
  return std::move(FItems[--FCount]);
}

}  // namespace gello
