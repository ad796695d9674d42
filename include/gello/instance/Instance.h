#pragma once
// Dynamic instances of model classes: property values kept by property index.
#include <vector>
#include "gello/foundation/Export.h"
#include "gello/model/ClassInstance.h"

namespace gello {

/// An instance whose shape is its model class; it keeps one value slot per property index
/// and a stored text.
class GELLO_API TRTTIClassInstance : public virtual IRTTIClassInstance {
 public:
  /// Sizes the value slots to the class's property count.
  explicit TRTTIClassInstance(const Ref<IRTTIClass>& Class);

  /// A new instance of the kind the class calls for; none for kinds past the known ones.
  static Ref<IRTTIClassInstance> CreateFromClass(const Ref<IRTTIClass>& Class);

  Ref<IRTTIClassInstance> CreateProperty(const String& Name) override;
  Ref<IRTTIClassInstance> ClassFactory(const String& ClassName) override;
  TJSON GetasCompactJSON() const override;
  TJSON GetasJSON() const override;
  const RefCounted* GetasObject() const override { return this; }
  String GetasString() const override { return FText; }
  String GetasToken() const override { return GetasString(); }
  Ref<IRTTIClass> GetInstanceType() const override { return FInstanceType; }
  Ref<IRTTIClassInstance> GetPropertyByName(const String& Name) const override;
  int GetPropertyCount() const override;
  String GetPropertyName(int Index) const override;
  Ref<IRTTIClassInstance> GetPropertyValue(int Index) const override;
  void SetasCompactJSON(const TJSON&) override {}
  void SetasJSON(const TJSON&) override {}
  void SetasString(const String& Value) override { FText = Value; }
  void SetasToken(const String& Value) override { SetasString(Value); }
  void SetInstanceType(const Ref<IRTTIClass>& Value) override { FInstanceType = Value; }
  void SetPropertyByName(const String& Name, const Ref<IRTTIClassInstance>& Value) override;
  void SetPropertyValue(int Index, const Ref<IRTTIClassInstance>& Value) override;

  /// The number of value slots held (it grows when the class gained properties).
  int GetSlotCount() const { return static_cast<int>(FValues.size()); }

 protected:
  /// The class's name, empty without a class.
  String ClassName() const;
  /// Data cells and collections answer a ".value" member; plain instances have none.
  virtual bool HasValue() const { return false; }
  virtual TJSON ValueJSON(bool Compact) const;
  std::vector<Ref<IRTTIClassInstance>>& Values() { return FValues; }
  const std::vector<Ref<IRTTIClassInstance>>& Values() const { return FValues; }

 private:
  TJSON PropertiesJSON(bool Compact) const;

  String FText;
  Ref<IRTTIClass> FInstanceType;
  std::vector<Ref<IRTTIClassInstance>> FValues;
};

}  // namespace gello
