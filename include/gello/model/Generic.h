#pragma once
// The generic parameter class (T of the generic collections).
#include "gello/foundation/Export.h"
#include "gello/model/Class.h"

namespace gello {

/// A class that stands for any type: every class test it makes succeeds.
class GELLO_API TRTTIGeneric : public TRTTIClass {
 public:
  static constexpr StringView KindName = u"Generic";
  using TRTTIClass::TRTTIClass;
  StringView GetKind() const override { return KindName; }
  bool IsGeneric() const override { return true; }
};

}  // namespace gello
