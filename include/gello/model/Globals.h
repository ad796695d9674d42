#pragma once
// The global scope: the packages, System first, with the built-in OCL types.
#include "gello/foundation/Export.h"
#include "gello/model/Package.h"

namespace gello {

/// The root of every model; it builds the System package and makes classes on demand.
class GELLO_API TRTTIGlobals : public TRTTIPackage, public virtual IRTTIGlobals {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Globals;
  TRTTIGlobals();
  ~TRTTIGlobals() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  Ref<IRTTIClass> Get_Any() const override { return FAny; }
  Ref<IRTTIClass> Get_Bag() const override { return FBag; }
  Ref<IRTTIClass> Get_Boolean() const override { return FBoolean; }
  Ref<IRTTIClass> Get_Collection() const override { return FCollection; }
  Ref<IRTTIClass> Get_Integer() const override { return FInteger; }
  Ref<IRTTIClass> Get_Real() const override { return FReal; }
  Ref<IRTTIClass> Get_Sequence() const override { return FSequence; }
  Ref<IRTTIClass> Get_Set() const override { return FSet; }
  Ref<IRTTIClass> Get_String() const override { return FString; }
  Ref<IRTTIPackage> Get_System() const override { return FSystem; }
  Ref<IRTTIClass> Get_T() const override { return FT; }
  Ref<IRTTIClass> Get_Tuple() const override { return FTuple; }
  Ref<IRTTIClass> Get_Undefined() const override { return FUndefined; }
  Ref<IRTTIClass> Get_Untyped() const override { return FUntyped; }
  /// The package "Main", made on first request, for models that name no package.
  Ref<IRTTIPackage> Get_Main() override;
  Ref<IRTTIPackage> GetPackageScope() const override { return FPackageScope; }
  void SetPackageScope(const Ref<IRTTIPackage>& Value) override { FPackageScope = Value; }
  Ref<IRTTIClass> BuildClass(const String& Name) override;
  Ref<IRTTIClass> BuildCollection(const String& CollectionName, const String& ElementName) override;
  /// Own members first, then each member scope one level deep, in the order added.
  Ref<IRTTIElement> Lookup(const String& Name, const GUID& InterfaceId) override;
  using IRTTIScope::Lookup;
  void Clear() override;

  /// A System class with that ancestor, whose class kind it takes, and host class name.
  Ref<IRTTIClass> MakeClass(const String& Name, const Ref<IRTTIClass>& Ancestor,
                            const String& HostClassName);
  /// A System collection class: MakeClass with an element type.
  Ref<IRTTIClass> MakeCollection(const String& Name, const Ref<IRTTIClass>& Ancestor,
                                 const String& HostClassName, const Ref<IRTTIClass>& ElementType);

 private:
  Ref<IRTTIPackage> FSystem;
  Ref<IRTTIPackage> FMain;
  Ref<IRTTIPackage> FPackageScope;
  Ref<IRTTIClass> FT, FUndefined, FUntyped, FAny, FReal, FString, FBoolean, FInteger;
  Ref<IRTTIClass> FCollection, FSet, FBag, FSequence, FTuple;
};

}  // namespace gello
