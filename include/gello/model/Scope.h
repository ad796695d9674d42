#pragma once
// The element with members: packages, classes and the global scope.
#include "gello/foundation/Export.h"
#include "gello/model/Element.h"

namespace gello {

/// Members kept in a name-indexed list, searched by name and by the interface a result must
/// support.
class GELLO_API TRTTIScope : public TRTTIElement, public virtual IRTTIScope {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Scope;
  static constexpr TNodeKindRange Kinds{Kind, TRTTINodeKind::ClassAlias};
  explicit TRTTIScope(String Name = {}, bool OwnsMembers = false);
  ~TRTTIScope() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  Ref<IRTTIElementList> GetMembers() const override { return FMembers; }
  void SetMembers(const Ref<IRTTIElementList>& Value) override { FMembers = Value; }
  /// Made on first request: most scopes (classes) never hold statements.
  Ref<IRTTIElementList> GetStatements() const override;
  void SetStatements(const Ref<IRTTIElementList>& Value) override { FStatements = Value; }
  bool GetOwnsMembers() const override { return FOwnsMembers; }
  void SetOwnsMembers(bool Value) override { FOwnsMembers = Value; }
  bool AddMember(const Ref<IRTTIElement>& Element) override;
  using IRTTIScope::Find;
  using IRTTIScope::Lookup;
  Ref<IRTTIElement> Find(const String& Name, const GUID& InterfaceId) override;
  Ref<IRTTIElementList> FindAll(const String& Name, const GUID& InterfaceId) override;
  Ref<IRTTIClass> FindClass(const String& Name) override;
  Ref<IRTTIElement> Lookup(const String& Name, const GUID& InterfaceId) override;
  Ref<IRTTIElementList> LookupAll(const String& Name, const GUID& InterfaceId) override;
  int GetVisibleCount() const override;
  Ref<IRTTIElement> GetVisibleMembers(int Index) const override;
  void SortAll() override;
  void WalkClasses(IRTTIElementList& List) override;
  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIElementList> FMembers;
  mutable Ref<IRTTIElementList> FStatements;
  bool FOwnsMembers;
};

}  // namespace gello
