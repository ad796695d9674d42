#pragma once
// Questions asked of interface descriptions: identity, ancestry, slot numbers and the listing.
#include <vector>
#include "gello/foundation/Export.h"

#include "gello/registry/IntfInfo.h"

namespace gello {

/// The interface's 16-byte identifier.
GELLO_API const GUID& GetIntfGUID(const TIntfInfo& Intf) noexcept;
/// The parent description, none for the root.
GELLO_API const TIntfInfo* GetIntfParent(const TIntfInfo& Intf) noexcept;
/// Whether Ancestor is a proper ancestor of Intf (an interface is not its own ancestor).
GELLO_API bool IntfHasAncestor(const TIntfInfo& Intf, const TIntfInfo& Ancestor) noexcept;
/// Whether the entry is a callable method of Intf (its first parameter is Self of Intf).
GELLO_API bool IsSelfMethod(const TIntfInfo& Intf, const TIntfEntry& Entry) noexcept;
/// Whether Intf is IOCLAny or one of its descendants (an OCL value interface).
GELLO_API bool IsOCLInterface(const TIntfInfo* Intf) noexcept;
/// The slots Intf adds: the declared count without details, else its callable entries.
GELLO_API int GetIntfMethodCount(const TIntfInfo& Intf);
/// The slots of all of Intf's ancestors: the slot of its first entry.
GELLO_API int GetIntfFirstSlot(const TIntfInfo& Intf);
/// The slot of Intf's own entry Name, or -1.
GELLO_API int GetInterfaceIndex(const TIntfInfo& Intf, StringView Name);
/// The callable entry in Slot of Intf or one of its ancestors, or none.
GELLO_API const TIntfEntry* GetIntfSlotEntry(const TIntfInfo& Intf, int Slot);
/// Lists Intf, its ancestors first, into Lines; answers the next free slot.
GELLO_API int PrintInterface(const TIntfInfo& Intf, std::vector<String>& Lines);

/// Target := Source when it supports Intf, else none.
GELLO_API void IntfCast(RefCounted* Source, const TIntfInfo& Intf, Ref<RefCounted>& Target);
/// The object behind an interface reference (one per object, whichever interface it is seen
/// through), or none for none.
inline const RefCounted* GetImplementingObject(const RefCounted* Intf) noexcept {
  return Intf;
}

}  // namespace gello
