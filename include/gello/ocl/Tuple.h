#pragma once
// Tuples: values whose fields are the properties of their model class.
#include "gello/foundation/Export.h"
#include "gello/ocl/MemInstance.h"

namespace gello {

/// Keeps one field per property index of its class; without a class it is a bare "Tuple".
class GELLO_API TOCLTuple : public TOCLMemInstance, public virtual IOCLTuple {
 public:
  /// Sizes the fields to the class's property count.
  explicit TOCLTuple(const Ref<IRTTIClass>& AClass = nullptr);
  explicit TOCLTuple(const TUndefined& Reason) : TOCLMemInstance(Reason) {}

  Ref<IRTTIClass> GetInstanceType() const override;
  String GetasString() const override;
  TJSON GetasJSON() const override;
  TJSON GetasCompactJSON() const override;
  Ref<IRTTIClassInstance> CreateProperty(const String& Name) override;
  int GetPropertyCount() const override;
  String GetPropertyName(int Index) const override;
  Ref<IRTTIClassInstance> GetPropertyValue(int Index) const override;
  Ref<IRTTIClassInstance> GetPropertyByName(const String& Name) const override;
  /// Raises EOCLException when Value is not an OCL value.
  void SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) override;
  /// Raises EOCLException when Value is not an OCL value; an unknown name is ignored.
  void SetPropertyByName(const String& Name, const Ref<IRTTIClassInstance>& Value) override;

 private:
  void StoreField(const Ref<IRTTIProperty>& Property, const Ref<IRTTIClassInstance>& Value);
  TJSON FieldsJSON(bool Compact) const;
};

}  // namespace gello
