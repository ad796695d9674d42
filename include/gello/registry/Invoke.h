#pragma once
// Calls through slots: script methods with interface arguments, and the typed property thunks
// of host objects. Every reference passed in is held for the length of the call.
#include "gello/foundation/Export.h"
#include "gello/ocl/Interfaces.h"
#include "gello/registry/IntfInfo.h"

namespace gello {

/// Calls the script method in Slot of Self (described by Intf) with Params in order.
GELLO_API Ref<IOCLAny> ExecuteIntfMethod(const TIntfInfo& Intf, RefCounted* Self,
                                         std::span<IOCLAny* const> Params, int Slot);
/// Calls a registered model method's slot after checking its information, argument count and
/// calling convention; without an extended description it answers none and calls nothing.
GELLO_API Ref<IOCLAny> ExecuteMethod(IOCLAny* Self, std::span<IOCLAny* const> Params,
                                     const TMethodInfo* Info);

/// Getters and setters of host value kinds (register accessors) by slot.
GELLO_API std::int32_t Intf_GetPropInt_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot);
GELLO_API Extended Intf_GetPropReal_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot);
GELLO_API bool Intf_GetPropBool_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot);
GELLO_API void Intf_GetPropIntf_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                         Ref<RefCounted>& Result);
GELLO_API void Intf_GetPropStr_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                        String& Result);
GELLO_API void Intf_SetPropInt_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                        std::int32_t Value);
GELLO_API void Intf_SetPropReal_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                         Extended Value);
GELLO_API void Intf_SetPropBool_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                         bool Value);
GELLO_API void Intf_SetPropIntf_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                         RefCounted* Value);
GELLO_API void Intf_SetPropStr_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                        const String& Value);

/// Script slots (stdcall): any number of interface arguments, an IOCLAny result.
inline Ref<IOCLAny> Intf_Method_StdCall(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                        std::span<IOCLAny* const> Args) {
  return ExecuteIntfMethod(Desc, Intf, Args, Slot);
}
inline Ref<IOCLAny> Intf_GetPropIntf_StdCall(RefCounted* Intf, const TIntfInfo& Desc, int Slot) {
  return ExecuteIntfMethod(Desc, Intf, {}, Slot);
}
inline void Intf_SetPropIntf_StdCall(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                                     IOCLAny* Value) {
  ExecuteIntfMethod(Desc, Intf, std::span<IOCLAny* const>(&Value, 1), Slot);
}

}  // namespace gello
