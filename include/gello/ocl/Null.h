#pragma once
// The null value: what a nil becomes before it can reach GELLO.
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// Never defined; property access on it gives another null value.
class GELLO_API TOCLNull : public TOCLAny {
 public:
  TOCLNull() = default;
  explicit TOCLNull(const Ref<IRTTIClass>& AClass) : TOCLAny(AClass) {}
  explicit TOCLNull(const TUndefined& Reason) : TOCLAny(Reason) {}

  bool IsDefined() const override { return false; }
  Ref<IRTTIClassInstance> GetPropertyByName(const String& Name) const override;
  Ref<IRTTIClassInstance> GetPropertyValue(int Index) const override;
};

}  // namespace gello
