#pragma once
// The described interfaces of the OCL runtime: the root, IInvokable, the instance interface and
// every OCL value interface. Their tables live in src/registry/OCLIntfTables.cpp.
#include "gello/foundation/Export.h"
#include "gello/ocl/Interfaces.h"
#include "gello/registry/IntfInfo.h"

namespace gello {

/// The root of host interfaces that the registry can expose as native classes.
struct GELLO_API IInvokable : virtual RefCounted {
  static constexpr GUID IID = GUIDLiteral("{8F0A0C6E-3B0E-4D1A-9F6B-2C1D7E5A4B31}");
};

/// The root interface: query, add-reference and release (three slots, no details).
GELLO_DESCRIBED(RefCounted, "IInterface");
GELLO_DESCRIBED(IInvokable, "IInvokable");
GELLO_DESCRIBED(IRTTIClassInstance, "IRTTIClassInstance");
GELLO_DESCRIBED(IOCLAny, "IOCLAny");
GELLO_DESCRIBED(IOCLT, "IOCLT");
GELLO_DESCRIBED(IOCLString, "IOCLString");
GELLO_DESCRIBED(IOCLBoolean, "IOCLBoolean");
GELLO_DESCRIBED(IOCLReal, "IOCLReal");
GELLO_DESCRIBED(IOCLInteger, "IOCLInteger");
GELLO_DESCRIBED(IOCLCollection, "IOCLCollection");
GELLO_DESCRIBED(IOCLTuple, "IOCLTuple");
GELLO_DESCRIBED(IOCLSequence, "IOCLSequence");
GELLO_DESCRIBED(IOCLSet, "IOCLSet");
GELLO_DESCRIBED(IOCLBag, "IOCLBag");
GELLO_DESCRIBED(IOCLIterator, "IOCLIterator");

/// The identifier of the root interface.
inline constexpr GUID IID_IInterface = GUIDLiteral("{00000000-0000-0000-C000-000000000046}");

}  // namespace gello
