#pragma once
// The scope that holds the loaded packages.
#include "gello/foundation/Export.h"
#include "gello/model/Scope.h"

namespace gello {

/// An unnamed scope of packages; it does not own them.
class GELLO_API TRTTIPackageList : public TRTTIScope, public virtual IRTTIPackageList {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::PackageList;
  explicit TRTTIPackageList(const String& Name = {}) : TRTTIScope(Name) {}
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  Ref<IRTTIPackage> FindPackage(const String& Name) override { return Find<IRTTIPackage>(Name); }
};

}  // namespace gello
