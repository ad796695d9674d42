#pragma once
// Model types: ancestors, element types, conformance, overload choice and property numbering.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/model/Scope.h"

namespace gello {

/// A model class; it owns its members (properties, methods, nested elements).
class GELLO_API TRTTIClass : public TRTTIScope, public virtual IRTTIClass {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Class;
  static constexpr TNodeKindRange Kinds{Kind, TRTTINodeKind::Generic};
  explicit TRTTIClass(String Name, const Ref<IRTTIClass>& Ancestor = nullptr,
                      const Ref<IRTTIClass>& ElementType = nullptr);
  ~TRTTIClass() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  bool AddMember(const Ref<IRTTIElement>& Element) override;
  Ref<IRTTIElement> Lookup(const String& Name, const GUID& InterfaceId) override;
  Ref<IRTTIElementList> LookupAll(const String& Name, const GUID& InterfaceId) override;
  using IRTTIScope::Lookup;

  int AllocatePropertyIndex() override { return FNextPropertyIndex++; }
  Ref<IRTTIMethod> FindMethod(const String& Name, IRTTIElementList* Args) override;
  Ref<IRTTIClass> GetAncestor() const override { return FAncestor; }
  String GetHostClassName() const override { return FHostClassName; }
  THostClass GetHostType() const override { return FHostType; }
  Ref<IRTTIClass> GetElementType() const override;
  Ref<IRTTIElementList> GetEnums() const override { return FEnums; }
  GUID GetInstanceIntf() const override;
  Ref<IRTTIClass> GetImmediateElementType() const override { return FElementType; }
  TRTTIClassKind GetClassKind() const override { return FClassKind; }
  THostClass GetInstanceImpl() const override;
  bool IsGeneric() const override { return false; }
  Ref<IRTTIProperty> GetProperties(int Index) override;
  int GetPropertyCount() override;
  int GetPropertyIndexAllocation() override;
  bool IsClass(IRTTIClass* Other) override;
  bool IsCollection() const override;
  bool GetIsTuple() const override { return FIsTuple; }
  bool HasAncestor(IRTTIClass* Other) const override;
  void SetAncestor(const Ref<IRTTIClass>& Value) override;
  void SetHostClassName(const String& Value) override { FHostClassName = Value; }
  void SetHostType(THostClass Value) override { FHostType = Value; }
  void SetElementType(const Ref<IRTTIClass>& Value) override { FElementType = Value; }
  void SetEnums(const Ref<IRTTIElementList>& Value) override { FEnums = Value; }
  void SetInstanceIntf(const GUID& Value) override { FInstanceIntf = Value; }
  void SetClassKind(TRTTIClassKind Value) override { FClassKind = Value; }
  void SetInstanceImpl(THostClass Value) override { FInstanceImpl = Value; }
  void SetIsTuple(bool Value) override { FIsTuple = Value; }
  void WalkRefs(IRTTIElementList& List) override;

  bool Compatible(IRTTIClass* Other) override { return IsClass(Other); }
  bool Derives(IRTTIClass* Other, IRTTIElementList& Path) override;
  void WalkClasses(IRTTIElementList& List) override;
  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

  /// Set(Integer) gives Set; a name without "(" is returned whole.
  String ExtractBaseName() const;
  /// Set(Integer) gives Integer: the text up to the first ")", empty without both parentheses.
  String ExtractElementName() const;

 private:
  bool CollectionConforms(IRTTIClass* Other);
  bool TupleConforms(IRTTIClass* Other);
  bool MembersDerive(IRTTIClass* Other, IRTTIElementList& Path);
  int OwnPropertyCount() const;

  bool FPropertyIndexesAllocated = false;
  Ref<IRTTIClass> FAncestor;
  String FHostClassName;
  THostClass FHostType = nullptr;
  Ref<IRTTIClass> FElementType;
  Ref<IRTTIElementList> FEnums;
  THostClass FInstanceImpl = nullptr;
  GUID FInstanceIntf = IID_IRTTIClassInstance;
  TRTTIClassKind FClassKind = rtti_undefined;
  bool FIsTuple = false;
  bool FPropertyCountComputed = false;
  std::int32_t FPropertyCount = 0;
  std::int32_t FNextPropertyIndex = 0;
  mutable std::uint32_t FWalking = 0;  // operations running on this class, to catch loops
};

/// A placeholder class that carries only a name, until resolution finds the real one.
GELLO_API Ref<IRTTIClass> BuildClassRef(const String& Name);

}  // namespace gello
