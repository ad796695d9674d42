#pragma once
// A second name for a class: every class query goes to the class it stands for.
#include "gello/foundation/Export.h"
#include "gello/model/Scope.h"

namespace gello {

/// Forwards the class queries to its actual class and ignores the class setters.
class GELLO_API TRTTIClassAlias : public TRTTIScope, public virtual IRTTIClass {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::ClassAlias;
  explicit TRTTIClassAlias(String Name);
  TRTTIClassAlias(const String& Name, const Ref<IRTTIClass>& ActualClass);
  ~TRTTIClassAlias() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  Ref<IRTTIClass> GetActualClass() const { return FActualClass; }
  /// Fails an assertion for an empty class.
  void SetActualClass(const Ref<IRTTIClass>& Value);

  bool GetResolved() const override;
  void SetResolved(bool) override {}
  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

  int AllocatePropertyIndex() override;
  Ref<IRTTIMethod> FindMethod(const String& Name, IRTTIElementList* Args) override;
  Ref<IRTTIClass> GetAncestor() const override;
  String GetHostClassName() const override;
  THostClass GetHostType() const override;
  Ref<IRTTIClass> GetElementType() const override;
  Ref<IRTTIElementList> GetEnums() const override;
  GUID GetInstanceIntf() const override;
  Ref<IRTTIClass> GetImmediateElementType() const override;
  TRTTIClassKind GetClassKind() const override;
  THostClass GetInstanceImpl() const override;
  bool IsGeneric() const override;
  Ref<IRTTIProperty> GetProperties(int Index) override;
  int GetPropertyCount() override;
  int GetPropertyIndexAllocation() override;
  bool IsClass(IRTTIClass* Other) override;
  bool IsCollection() const override;
  bool GetIsTuple() const override;
  bool HasAncestor(IRTTIClass* Other) const override;
  void WalkRefs(IRTTIElementList& List) override;

  void SetAncestor(const Ref<IRTTIClass>&) override {}
  void SetHostClassName(const String&) override {}
  void SetHostType(THostClass) override {}
  void SetElementType(const Ref<IRTTIClass>&) override {}
  void SetEnums(const Ref<IRTTIElementList>&) override {}
  void SetInstanceIntf(const GUID&) override {}
  void SetClassKind(TRTTIClassKind) override {}
  void SetInstanceImpl(THostClass) override {}
  void SetIsTuple(bool) override {}

 private:
  Ref<IRTTIClass> FActualClass;
};

}  // namespace gello
