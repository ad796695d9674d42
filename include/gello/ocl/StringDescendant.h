#pragma once
// Values of model classes that extend the built-in String with properties of their own.
#include "gello/foundation/Export.h"
#include "gello/ocl/String.h"

namespace gello {

/// Keeps its text as a String and its extra properties in a tuple over its own model class.
class GELLO_API TOCLStringDescendant : public TOCLString {
 public:
  explicit TOCLStringDescendant(const Ref<IRTTIClass>& AClass);

  Ref<IRTTIClass> GetInstanceType() const override;
  int GetPropertyCount() const override;
  String GetPropertyName(int Index) const override;
  Ref<IRTTIClassInstance> GetPropertyByName(const String& Name) const override;
  Ref<IRTTIClassInstance> GetPropertyValue(int Index) const override;
  void SetPropertyByName(const String& Name, const Ref<IRTTIClassInstance>& Value) override;
  void SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) override;

 private:
  Ref<IOCLAny> Fdescendant;
};

}  // namespace gello
