#pragma once
// An OCL value over a host object, whose properties are read and written through its slots.
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// Wraps a host interface reference with the model class that describes it.
class GELLO_API TOCLNativeInterface : public TOCLAny {
 public:
  TOCLNativeInterface(const Ref<IRTTIClass>& Class, const Ref<RefCounted>& Intf);

  RefCounted* GetIntf() const noexcept { return FIntf.get(); }
  /// The class name with the wrapped object's text in parentheses.
  String GetasString() const override;
  Ref<IRTTIClass> GetInstanceType() const override { return FInstanceType; }
  void SetInstanceType(const Ref<IRTTIClass>& Value) override { FInstanceType = Value; }
  /// Reads Prop through its getter slot.
  Ref<IOCLAny> GetProperty(const IRTTIProperty& Prop) const;
  /// Writes Prop through its setter slot; a value of the wrong interface is refused.
  void SetProperty(const IRTTIProperty& Prop, IOCLAny* Value);

 private:
  const struct TIntfInfo& Described() const;
  [[noreturn]] void RaiseIncompatible(const IRTTIProperty& Prop, IOCLAny* Value) const;
  void SetNative(const IRTTIProperty& Prop, IOCLAny* Value);

  Ref<RefCounted> FIntf;
  Ref<IRTTIClass> FClass;
  Ref<IRTTIClass> FInstanceType;
};

}  // namespace gello
