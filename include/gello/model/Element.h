#pragma once
// The element base class: identity, write-once naming, identifiers and default type answers.
#include <cstdint>
#include <memory>
#include "gello/foundation/Export.h"

#include "gello/model/Interfaces.h"

namespace gello {

/// Base of every model element; subclasses refine the type questions and Resolve.
class GELLO_API TRTTIElement : public virtual IRTTIElement {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Element;
  static constexpr TNodeKindRange Kinds{Kind, TRTTINodeKind::ClassLiteral};
  explicit TRTTIElement(String Name = {});
  ~TRTTIElement() override;

  const String& GetName() const override { return FName; }
  void SetName(const String& Value) override;
  bool IsNamed(const String& Name) const override { return FName == Name; }
  String GetAnnotation() const override;
  void SetAnnotation(const String& Value) override;
  Ref<IRTTIDebugInfo> GetDebugInfo() const override;
  void SetDebugInfo(const Ref<IRTTIDebugInfo>& Value) override;
  bool GetHidden() const override { return FHidden; }
  void SetHidden(bool Value) override { FHidden = Value; }
  bool GetResolved() const override { return FResolved; }
  void SetResolved(bool Value) override { FResolved = Value; }
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  /// The kind word of the kind tag.
  StringView GetKind() const override { return KindWord(GetNodeKind()); }
  String ExternalTypeName() const override { return String(GetKind()); }
  GUID GetGUID() override;
  String GetUML_ID() override;
  void SetUML_ID(const String& Value) override;
  String PeekUML_ID() const override;
  void Resolve(IRTTIScope* Scope) override;
  bool Compatible(IRTTIClass* Other) override;
  bool Derives(IRTTIClass* Other, IRTTIElementList& Path) override;
  void WalkClasses(IRTTIElementList& List) override;
  void Clear() override;

 private:
  // What few elements have, kept apart so that a large model's many elements stay small.
  struct TExtras {
    String Annotation;
    GUID Id;
    Ref<IRTTIDebugInfo> DebugInfo;
    String UML_ID;
  };
  TExtras& Extras();

  String FName;
  std::unique_ptr<TExtras> FExtras;
  bool FHidden = false;
  bool FResolved = false;
};

/// Changes whenever an element gets a GUID or a UML id is set, so caches of ids know to refresh.
GELLO_API std::uint64_t UMLIdEpoch();

/// The class that Class's name denotes as seen from Scope; Class itself when Scope knows none.
GELLO_API Ref<IRTTIClass> ResolveClass(const Ref<IRTTIClass>& Class, IRTTIScope* Scope);

}  // namespace gello
