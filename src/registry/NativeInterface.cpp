#include "gello/registry/NativeInterface.h"

#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/String.h"
#include "gello/registry/IntfDecl.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/Invoke.h"

namespace gello {

namespace {

// The accessor of a host value (not an OCL value, which goes through the script slots).
const TIntfEntry* HostAccessor(const IRTTIProperty& Prop) {
  const TIntfEntry* Accessor = AsIntfEntry(Prop.GetPropInfo());
  if (!Accessor || Accessor->CallConv != cc_register) return nullptr;
  const bool OCLValue =
      Accessor->Kind == mk_function
          ? IsOCLInterface(Accessor->ResultType)
          : Accessor->Params.size() == 2 && IsOCLInterface(Accessor->Params[1].TypeRef);
  return OCLValue ? nullptr : Accessor;
}

// The interface a setter's value must support.
const TIntfInfo* SetterParamType(const TIntfInfo& Intf, int Slot) {
  const TIntfEntry* Setter = GetIntfSlotEntry(Intf, Slot);
  return Setter && Setter->Params.size() == 2 ? Setter->Params[1].TypeRef : nullptr;
}

bool Supports(const TIntfInfo* Intf, const RefCounted* Object) {
  return Intf && Object && Intf->Supports(Object);
}

template <class I>
I* ValueAs(IOCLAny* Value) {
  return CachedCast<I>(Value);
}

}  // namespace

RefCounted* NativeTarget(IOCLAny* Value) noexcept {
  if (auto* Native = CachedCast<TOCLNativeInterface>(Value)) return Native->GetIntf();
  return Value;
}

TOCLNativeInterface::TOCLNativeInterface(const Ref<IRTTIClass>& Class, const Ref<RefCounted>& Intf)
    : TOCLAny(Class), FIntf(Intf), FClass(Class), FInstanceType(Class) {}

String TOCLNativeInterface::GetasString() const {
  if (!FClass) return u"[UnknownInterface]";
  auto* Instance = CachedCast<IRTTIClassInstance>(FIntf.get());
  return FClass->GetName() + u"(" + (Instance ? Instance->GetasString() : String()) + u")";
}

const TIntfInfo& TOCLNativeInterface::Described() const {
  const TIntfInfo* Intf = FClass ? AsIntfInfo(FClass->GetHostType()) : nullptr;
  if (!Supports(Intf, FIntf.get()))
    throw EOCLException(u"Internal OCL error: mismatching instance class and GUID for " +
                        (FClass ? FClass->GetName() : String()));
  return *Intf;
}

Ref<IOCLAny> TOCLNativeInterface::GetProperty(const IRTTIProperty& Prop) const {
  const TIntfInfo& Intf = Described();
  const int Slot = Prop.GetGetterVMTIndex();
  const TIntfEntry* Getter = HostAccessor(Prop);
  if (!Getter) return Intf_GetPropIntf_StdCall(FIntf.get(), Intf, Slot);
  switch (AccessorKind(*Getter)) {
    case hk_integer:
      return MakeRef<TOCLInteger>(Intf_GetPropInt_Register(FIntf.get(), Intf, Slot));
    case hk_boolean:
      return TOCLBoolean::BooleanValue(Intf_GetPropBool_Register(FIntf.get(), Intf, Slot));
    case hk_float:
      return MakeRef<TOCLReal>(Intf_GetPropReal_Register(FIntf.get(), Intf, Slot));
    case hk_string: {
      String Text;
      Intf_GetPropStr_Register(FIntf.get(), Intf, Slot, Text);
      return MakeRef<TOCLString>(std::move(Text));
    }
    case hk_interface: {
      Ref<RefCounted> Result;
      Intf_GetPropIntf_Register(FIntf.get(), Intf, Slot, Result);
      return NullCheck(Result ? MakeRef<TOCLNativeInterface>(Prop.GetPropertyType(), Result)
                              : nullptr);
    }
    case hk_other:
      break;
  }
  return nullptr;
}

void TOCLNativeInterface::SetProperty(const IRTTIProperty& Prop, IOCLAny* Value) {
  if (HostAccessor(Prop)) return SetNative(Prop, Value);
  const TIntfInfo& Intf = Described();
  Ref<IRTTIClass> Type = Prop.GetPropertyType();
  const TIntfInfo* TypeIntf = Type ? AsIntfInfo(Type->GetHostType()) : nullptr;
  if (!Supports(TypeIntf, Value)) RaiseIncompatible(Prop, Value);
  Intf_SetPropIntf_StdCall(FIntf.get(), Intf, Prop.GetSetterVMTIndex(), Value);
}

void TOCLNativeInterface::SetNative(const IRTTIProperty& Prop, IOCLAny* Value) {
  const TIntfInfo& Intf = Described();
  const int Slot = Prop.GetSetterVMTIndex();
  RefCounted* Self = FIntf.get();
  switch (AccessorKind(*HostAccessor(Prop))) {
    case hk_integer:
      if (auto* Number = ValueAs<IOCLInteger>(Value))
        return Intf_SetPropInt_Register(Self, Intf, Slot,
                                        static_cast<std::int32_t>(Number->GetasInt64()));
      break;
    case hk_boolean:
      if (auto* Flag = ValueAs<IOCLBoolean>(Value))
        return Intf_SetPropBool_Register(Self, Intf, Slot, Flag->GetasBoolean());
      break;
    case hk_float:
      if (auto* Number = ValueAs<IOCLReal>(Value))
        return Intf_SetPropReal_Register(Self, Intf, Slot, Number->GetasExtended());
      break;
    case hk_string:
      if (auto* Text = ValueAs<IOCLString>(Value))
        return Intf_SetPropStr_Register(Self, Intf, Slot, Text->GetasString());
      break;
    case hk_interface:
      if (Supports(SetterParamType(Intf, Slot), NativeTarget(Value)))
        return Intf_SetPropIntf_Register(Self, Intf, Slot, NativeTarget(Value));
      break;
    case hk_other:
      break;
  }
  RaiseIncompatible(Prop, Value);
}

void TOCLNativeInterface::RaiseIncompatible(const IRTTIProperty& Prop, IOCLAny* Value) const {
  throw EOCLException(u"incompatible type for " + (FClass ? FClass->GetName() : String()) + u"." +
                      Prop.GetName() + u" := " + (Value ? Value->GetasString() : u"nil"));
}

}  // namespace gello
