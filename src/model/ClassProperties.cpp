// Numbering of properties across the ancestor chain: the ancestor's first, then the class's own.
#include "AncestorWalk.h"
#include "gello/model/Class.h"

namespace gello {
namespace {
enum : std::uint32_t {
  walk_count = 1u << 9,
  walk_allocation = 1u << 10,
  walk_properties = 1u << 11
};
}  // namespace

int TRTTIClass::OwnPropertyCount() const {
  int Count = 0;
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (CachedCast<IRTTIProperty>(Members->GetItems(i).get())) ++Count;
  return Count;
}

int TRTTIClass::GetPropertyCount() {
  // Computed once and kept, even when members are added later.
  if (FPropertyCountComputed) return FPropertyCount;
  TWalkGuard Guard(FWalking, walk_count, u"GetPropertyCount", GetName());
  if (Guard.Looped()) return 0;
  FPropertyCount = (FAncestor ? FAncestor->GetPropertyCount() : 0) + OwnPropertyCount();
  FPropertyCountComputed = true;
  return FPropertyCount;
}

int TRTTIClass::GetPropertyIndexAllocation() {
  if (FPropertyIndexesAllocated) return FNextPropertyIndex;
  TWalkGuard Guard(FWalking, walk_allocation, u"GetPropertyIndexAllocation", GetName());
  if (Guard.Looped()) return 0;
  FPropertyIndexesAllocated = true;
  FNextPropertyIndex = FAncestor ? FAncestor->GetPropertyIndexAllocation() : 0;
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Property = DynCast<IRTTIProperty>(Members->GetItems(i)))
      Property->SetPropertyIndex(AllocatePropertyIndex());
  return FNextPropertyIndex;
}

Ref<IRTTIProperty> TRTTIClass::GetProperties(int Index) {
  TWalkGuard Guard(FWalking, walk_properties, u"GetProperties", GetName());
  if (Guard.Looped()) return nullptr;
  if (FAncestor) {
    const int Inherited = FAncestor->GetPropertyCount();
    if (Index < Inherited) return FAncestor->GetProperties(Index);
    Index -= Inherited;
  }
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Property = DynCast<IRTTIProperty>(Members->GetItems(i)))
      if (Index-- == 0) return Property;
  return nullptr;
}

}  // namespace gello
