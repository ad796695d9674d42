#pragma once
// What the engine keeps about an implementing interface: its method table, entry by entry.
// Tables are constant data made by the declaration facility (registry/IntfDecl.h).
#include <cstdint>
#include <span>
#include "gello/foundation/Export.h"

#include "gello/foundation/Extended.h"
#include "gello/foundation/GUID.h"
#include "gello/foundation/RefCounted.h"
#include "gello/foundation/String.h"
#include "gello/model/HostClass.h"

namespace gello {

struct IOCLAny;
struct TIntfInfo;

/// Calling-convention codes: stdcall marks a script operation, register an internal accessor.
enum TCallConv : std::uint8_t {
  cc_register = 0,
  cc_cdecl = 1,
  cc_pascal = 2,
  cc_stdcall = 3,
  cc_safecall = 4
};

/// Entry kinds.
enum TMethodKind : std::uint8_t { mk_procedure = 0, mk_function = 1 };

/// Parameter flags (bits; 0 is by value).
enum TParamFlag : std::uint8_t { pf_var = 1, pf_const = 2, pf_out = 4 };

/// The host value kinds a native property or parameter can have.
enum THostKind : std::uint8_t {
  hk_other = 0,
  hk_integer,
  hk_boolean,
  hk_float,
  hk_string,
  hk_interface
};

/// A parameter: flags, name, type name and, for a described interface, its description.
struct GELLO_API TIntfParam {
  std::uint8_t Flags;
  const char* Name;
  const char* TypeName;
  const TIntfInfo* TypeRef;
  THostKind Kind;
};

/// A slot's script call: Self and one interface reference per argument in, an IOCLAny out.
using TSlotCall = Ref<IOCLAny> (*)(RefCounted* Self, std::span<IOCLAny* const> Args);

/// The typed getter or setter of a host value kind; the entry's shape says which one is set.
union TAccessor {
  void (*None)() = nullptr;
  std::int32_t (*GetInt)(RefCounted* Self);
  bool (*GetBool)(RefCounted* Self);
  Extended (*GetReal)(RefCounted* Self);
  String (*GetStr)(RefCounted* Self);
  Ref<RefCounted> (*GetIntf)(RefCounted* Self);
  void (*SetInt)(RefCounted* Self, std::int32_t Value);
  void (*SetBool)(RefCounted* Self, bool Value);
  void (*SetReal)(RefCounted* Self, Extended Value);
  void (*SetStr)(RefCounted* Self, const String& Value);
  void (*SetIntf)(RefCounted* Self, RefCounted* Value);
};

/// A host property's record (a property's TPropInfo): the getter entry that reads it.
struct THostPropInfo {};

/// One entry of a method table. A callable method's first parameter is Self.
struct GELLO_API TIntfEntry : THostPropInfo {
  const char* Name;
  TMethodKind Kind;
  TCallConv CallConv;
  std::span<const TIntfParam> Params;
  const char* ResultTypeName = "";
  const TIntfInfo* ResultType = nullptr;
  THostKind ResultKind = hk_other;
  TSlotCall Call = nullptr;
  TAccessor Accessor = {};
};

/// An interface: name, id, parent (none for the root), declared count and the entries.
struct GELLO_API TIntfInfo : THostClassInfo {
  GUID IID;
  const TIntfInfo* Parent;
  std::uint16_t DeclaredCount;
  /// False when only the declared count is known.
  bool HasDetails;
  std::span<const TIntfEntry> Entries;
  /// Whether an object supports the interface (the query by id).
  bool (*Supports)(const RefCounted* Object);
};

/// The getter entry behind a property's host record.
inline const TIntfEntry* AsIntfEntry(const THostPropInfo* Info) noexcept {
  return static_cast<const TIntfEntry*>(Info);
}

/// The host kind an accessor entry reads (a getter's result) or writes (a setter's value).
inline THostKind AccessorKind(const TIntfEntry& Entry) noexcept {
  if (Entry.Kind == mk_function) return Entry.ResultKind;
  return Entry.Params.size() == 2 ? Entry.Params[1].Kind : hk_other;
}

/// Each described interface specialises this (GELLO_DESCRIBED) with its Name and its Info.
template <class I>
struct TDescribed {
  static constexpr bool Known = false;
};

/// Declares that interface I has a description named Text; one source file defines its Info.
#define GELLO_DESCRIBED(I, Text)              \
  template <>                                 \
  struct GELLO_API TDescribed<I> {            \
    static constexpr bool Known = true;       \
    static constexpr const char* Name = Text; \
    static const TIntfInfo Info;              \
  }

/// What ExecuteMethod needs of a model method: the code, the name and, when present, the
/// extended description (calling convention and arguments).
struct GELLO_API TMethodInfo {
  TSlotCall Code = nullptr;
  String Name;
  const TIntfEntry* Description = nullptr;
};

/// The description behind a host type handle, or none when it is not an interface.
inline const TIntfInfo* AsIntfInfo(const THostClassInfo* Host) noexcept {
  return Host && Host->HostKind == hc_interface ? static_cast<const TIntfInfo*>(Host) : nullptr;
}

}  // namespace gello
