#pragma once
// Properties of classes and parameters of methods.
#include "gello/foundation/Export.h"
#include "gello/model/Element.h"

namespace gello {

/// A typed property with its slot index and the positions of its host getter and setter.
class GELLO_API TRTTIProperty : public TRTTIElement, public virtual IRTTIProperty {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Property;
  /// The reader's form: the type comes later.
  explicit TRTTIProperty(String Name);
  /// Fails an assertion when PropertyType is empty.
  TRTTIProperty(const String& Name, const Ref<IRTTIClass>& PropertyType,
                TPropInfo PropInfo = nullptr);
  ~TRTTIProperty() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  std::int32_t GetGetterVMTIndex() const override { return FGetterVMTIndex; }
  std::int32_t GetPropertyIndex() const override { return FPropertyIndex; }
  Ref<IRTTIClass> GetPropertyType() const override { return FPropertyType; }
  Ref<IRTTIValue> GetPropertyValue() const override { return FPropertyValue; }
  TPropInfo GetPropInfo() const override { return FPropInfo; }
  bool GetReadOnly() const override { return FReadOnly; }
  std::int32_t GetSetterVMTIndex() const override { return FSetterVMTIndex; }
  void SetGetterVMTIndex(std::int32_t Value) override { FGetterVMTIndex = Value; }
  void SetPropertyIndex(std::int32_t Value) override;
  void SetPropertyType(const Ref<IRTTIClass>& Value) override { FPropertyType = Value; }
  void SetPropertyValue(const Ref<IRTTIValue>& Value) override { FPropertyValue = Value; }
  void SetPropInfo(TPropInfo Value) override { FPropInfo = Value; }
  void SetReadOnly(bool Value) override { FReadOnly = Value; }
  void SetSetterVMTIndex(std::int32_t Value) override { FSetterVMTIndex = Value; }

  bool Compatible(IRTTIClass* Other) override;
  bool Derives(IRTTIClass* Other, IRTTIElementList& Path) override;
  void Resolve(IRTTIScope* Scope) override;
  void WalkClasses(IRTTIElementList& List) override;
  void Clear() override;

 private:
  std::int32_t FPropertyIndex = 0;
  bool FIndexSet = false;
  Ref<IRTTIClass> FPropertyType;
  Ref<IRTTIValue> FPropertyValue;
  std::int32_t FGetterVMTIndex = 0;
  std::int32_t FSetterVMTIndex = 0;
  bool FReadOnly = false;
  TPropInfo FPropInfo = nullptr;
};

}  // namespace gello
