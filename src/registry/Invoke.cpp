#include "gello/registry/Invoke.h"

#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Interfaces.h"
#include "gello/registry/IntfDecl.h"
#include "gello/registry/IntfQueries.h"

namespace gello {

namespace {

// Holds Self and every argument while a slot runs; released on the way out, thrown or not.
class THeldRefs {
 public:
  THeldRefs(RefCounted* Self, std::span<IOCLAny* const> Args) : FSelf(Self), FArgs(Args) {
    for (IOCLAny* Arg : FArgs)
      if (Arg) Arg->AddRef();
  }
  ~THeldRefs() {
    for (IOCLAny* Arg : FArgs)
      if (Arg) Arg->Release();
  }
  THeldRefs(const THeldRefs&) = delete;
  THeldRefs& operator=(const THeldRefs&) = delete;

 private:
  Ref<RefCounted> FSelf;
  std::span<IOCLAny* const> FArgs;
};

String Text(const char* Name) {
  return FromLatin1(Name);
}

std::size_t ArgumentCount(const TIntfEntry& Entry) {
  return Entry.Params.empty() ? 0 : Entry.Params.size() - 1;
}

[[noreturn]] void RaiseParameterCount(const String& Name) {
  throw Exception(u"ExecuteIntfMethod: bad number of parameters for " + Name);
}

const String& KindText(THostKind Kind) {
  static const String Texts[] = {u"other", u"integer", u"boolean",
                                 u"real",  u"string",  u"interface"};
  return Texts[Kind];
}

// The entry in Slot, which must be a getter (or setter) of the given host kind.
const TIntfEntry& Accessor(const TIntfInfo& Desc, int Slot, bool Getter, THostKind Kind) {
  const TIntfEntry* Entry = GetIntfSlotEntry(Desc, Slot);
  // The declaration facility fills the accessor of exactly this shape.
  const bool Fits = Entry && (Getter ? Entry->Kind == mk_function && Entry->Params.size() == 1 &&
                                           Entry->ResultKind == Kind
                                     : Entry->Kind == mk_procedure && Entry->Params.size() == 2 &&
                                           Entry->Params[1].Kind == Kind);
  if (!Fits)
    throw Exception(u"no " + KindText(Kind) + (Getter ? u" getter" : u" setter") + u" in slot " +
                    IntToStr(Slot) + u" of " + Text(Desc.Name));
  return *Entry;
}

}  // namespace

void RaiseUnsupportedSelf(const char* IntfName) {
  throw Exception(u"ExecuteIntfMethod: object does not support " + Text(IntfName));
}

Ref<IOCLAny> ExecuteIntfMethod(const TIntfInfo& Intf, RefCounted* Self,
                               std::span<IOCLAny* const> Params, int Slot) {
  const TIntfEntry* Entry = GetIntfSlotEntry(Intf, Slot);
  if (!Entry || !Entry->Call)
    throw Exception(u"ExecuteIntfMethod: no script method in slot " + IntToStr(Slot) + u" of " +
                    Text(Intf.Name));
  if (ArgumentCount(*Entry) != Params.size()) RaiseParameterCount(Text(Entry->Name));
  THeldRefs Held(Self, Params);
  return Entry->Call(Self, Params);
}

Ref<IOCLAny> ExecuteMethod(IOCLAny* Self, std::span<IOCLAny* const> Params,
                           const TMethodInfo* Info) {
  if (!Info) throw Exception(u"ExecuteIntfMethod: missing methodinfo");
  const TIntfEntry* Description = Info->Description;
  if (!Description) return nullptr;
  // The argument area holds Self, the hidden result, two machine words and the arguments.
  const std::size_t ArgumentArea = ArgumentCount(*Description) + 4;
  if (ArgumentArea - 4 != Params.size()) RaiseParameterCount(Info->Name);
  if (Description->CallConv != cc_stdcall || !Info->Code)
    throw Exception(u"ExecuteIntfMethod: bad calling convention for method " + Info->Name);
  THeldRefs Held(Self, Params);
  return Info->Code(Self, Params);
}

std::int32_t Intf_GetPropInt_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot) {
  const Ref<RefCounted> Held(Intf);
  return Accessor(Desc, Slot, true, hk_integer).Accessor.GetInt(Intf);
}

Extended Intf_GetPropReal_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot) {
  const Ref<RefCounted> Held(Intf);
  return Accessor(Desc, Slot, true, hk_float).Accessor.GetReal(Intf);
}

bool Intf_GetPropBool_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot) {
  const Ref<RefCounted> Held(Intf);
  return Accessor(Desc, Slot, true, hk_boolean).Accessor.GetBool(Intf);
}

void Intf_GetPropIntf_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                               Ref<RefCounted>& Result) {
  const Ref<RefCounted> Held(Intf);
  Result = Accessor(Desc, Slot, true, hk_interface).Accessor.GetIntf(Intf);
}

void Intf_GetPropStr_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot, String& Result) {
  const Ref<RefCounted> Held(Intf);
  Result = Accessor(Desc, Slot, true, hk_string).Accessor.GetStr(Intf);
}

void Intf_SetPropInt_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                              std::int32_t Value) {
  const Ref<RefCounted> Held(Intf);
  Accessor(Desc, Slot, false, hk_integer).Accessor.SetInt(Intf, Value);
}

void Intf_SetPropReal_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot, Extended Value) {
  const Ref<RefCounted> Held(Intf);
  Accessor(Desc, Slot, false, hk_float).Accessor.SetReal(Intf, Value);
}

void Intf_SetPropBool_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot, bool Value) {
  const Ref<RefCounted> Held(Intf);
  Accessor(Desc, Slot, false, hk_boolean).Accessor.SetBool(Intf, Value);
}

void Intf_SetPropIntf_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                               RefCounted* Value) {
  const Ref<RefCounted> Held(Intf), HeldValue(Value);
  Accessor(Desc, Slot, false, hk_interface).Accessor.SetIntf(Intf, Value);
}

void Intf_SetPropStr_Register(RefCounted* Intf, const TIntfInfo& Desc, int Slot,
                              const String& Value) {
  const Ref<RefCounted> Held(Intf);
  Accessor(Desc, Slot, false, hk_string).Accessor.SetStr(Intf, Value);
}

}  // namespace gello
