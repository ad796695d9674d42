#pragma once
// Packages: the unit in which a model is loaded, resolved and saved.
#include <atomic>
#include "gello/foundation/Export.h"

#include "gello/model/Scope.h"

namespace gello {

/// A scope of classes, aliases and nested packages, with imports, a main block and a use count.
class GELLO_API TRTTIPackage : public TRTTIScope, public virtual IRTTIPackage {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Package;
  static constexpr TNodeKindRange Kinds{Kind, TRTTINodeKind::Globals};
  explicit TRTTIPackage(String Name);
  ~TRTTIPackage() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  Ref<IRTTIElementList> GetImports() const override { return FImports; }
  void SetImports(const Ref<IRTTIElementList>& Value) override { FImports = Value; }
  Ref<IRTTIValue> GetMainBlock() const override { return FMainBlock; }
  void SetMainBlock(const Ref<IRTTIValue>& Value) override { FMainBlock = Value; }
  std::int32_t GetUseCount() const override { return FUseCount.load(); }
  void Use() override { FUseCount.fetch_add(1); }
  /// Raises when the count is already 0.
  void Unuse() override;
  Ref<IRTTIClass> FindClass(const String& Name) override;
  Ref<IRTTIClass> FindAddClass(const String& Name, IRTTIGlobals* Globals) override;
  void BuildFactory() override;
  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIClass> FindQualified(const String& PackageName, const String& ClassName,
                                IRTTIGlobals* Globals);

  Ref<IRTTIElementList> FImports;
  Ref<IRTTIValue> FMainBlock;
  std::atomic<std::int32_t> FUseCount{0};
};

}  // namespace gello
