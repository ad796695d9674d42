#pragma once
// TOCLAny, the root of every OCL value class.
#include <memory>
#include "gello/foundation/Export.h"
#include "gello/ocl/Interfaces.h"
#include "gello/ocl/InternalOCLException.h"

namespace gello {

/// The reason given to a constructor that makes an undefined value.
struct GELLO_API TUndefined {
  String Message;
};

/// The root value: identity equality, the ocl* operations and the undefined state (a value
/// whose chain of reasons is not empty is undefined).
class GELLO_API TOCLAny : public virtual IOCLAny {
 public:
  /// An ordinary defined value.
  TOCLAny() = default;
  /// A value of a model class; a class whose interface GUID is null is refused.
  explicit TOCLAny(const Ref<IRTTIClass>& AClass);
  /// An undefined value that remembers why.
  explicit TOCLAny(const TUndefined& Reason);
  ~TOCLAny() override;

  /// Value, or a new null value when it is nil: nil never reaches GELLO.
  static Ref<IOCLAny> NullCheck(Ref<IOCLAny> Value);
  /// A new value of the value class that the model class's kind calls for.
  static Ref<IOCLAny> CreateFromClass(const Ref<IRTTIClass>& AClass);

  /// Puts a newer reason at the head of the chain.
  void AddException(const String& Message);
  /// Asserts that the reference count is at least one.
  void CheckRefCount() const;
  /// The C++ class name of the implementing object ("TOCLInteger").
  String HostClassName() const;
  virtual bool IsDefined() const { return !GetunDefined(); }
  /// Only type values answer this; every other value raises.
  virtual Ref<IRTTIClass> GetOCLClassType() const;

  Ref<IRTTIClassInstance> CreateProperty(const String& Name) override;
  Ref<IRTTIClassInstance> ClassFactory(const String& ClassName) override;
  TJSON GetasCompactJSON() const override { return GetasJSON(); }
  TJSON GetasJSON() const override;
  const RefCounted* GetasObject() const override { return this; }
  String GetasString() const override;
  String GetasToken() const override { return GetasString(); }
  Ref<IRTTIClass> GetInstanceType() const override;
  Ref<IRTTIClassInstance> GetPropertyByName(const String& Name) const override;
  int GetPropertyCount() const override { return 0; }
  String GetPropertyName(int Index) const override;
  Ref<IRTTIClassInstance> GetPropertyValue(int Index) const override;
  void SetasCompactJSON(const TJSON&) override {}
  void SetasJSON(const TJSON&) override {}
  void SetasString(const String& Value) override;
  void SetasToken(const String& Value) override { SetasString(Value); }
  void SetInstanceType(const Ref<IRTTIClass>&) override {}
  void SetPropertyByName(const String&, const Ref<IRTTIClassInstance>&) override {}
  void SetPropertyValue(int, const Ref<IRTTIClassInstance>&) override {}

  Ref<IOCLSet> allInstances() const override;
  String Display() const override { return GetasString(); }
  const TInternalOCLException* GetExceptions() const override { return FExceptions.get(); }
  String GetExceptionMessage() const override;
  bool isEqual(IOCLAny* Other) const override;
  bool GetunDefined() const override { return FExceptions != nullptr; }
  bool _LessThan(IOCLAny* Other) const override;
  Ref<IOCLT> oclAsType(IOCLT* t) const override;
  Ref<IOCLBoolean> oclIsDefined() const override;
  Ref<IOCLBoolean> oclIsInState(IOCLString* statename) const override;
  Ref<IOCLBoolean> oclIsKindOf(IOCLT* baseType) const override;
  Ref<IOCLT> oclType() const override;
  Ref<IOCLBoolean> _EQ_(IOCLAny* o) const override;
  Ref<IOCLBoolean> _NE_(IOCLAny* o) const override;

 protected:
  /// The name of the instance type, empty when there is none.
  String InstanceTypeName() const;

 private:
  std::unique_ptr<TInternalOCLException> FExceptions;
};

}  // namespace gello
