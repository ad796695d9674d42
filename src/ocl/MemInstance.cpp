#include "gello/ocl/MemInstance.h"

namespace gello {

Ref<IOCLAny> TOCLMemInstance::GetItems(int Index) const {
  if (Index < 0 || Index >= GetCount()) return nullptr;
  return FItems[static_cast<std::size_t>(Index)];
}

void TOCLMemInstance::SetCount(int Value) {
  FItems.resize(static_cast<std::size_t>(Value < 0 ? 0 : Value));
}

void TOCLMemInstance::SetItems(int Index, const Ref<IOCLAny>& Value) {
  if (Index < 0) return;
  if (Index >= GetCount()) SetCount(Index + 1);
  FItems[static_cast<std::size_t>(Index)] = Value;
}

}  // namespace gello
