#pragma once
// The generic parameter class (T of the generic collections).
#include "gello/foundation/Export.h"
#include "gello/model/Class.h"

namespace gello {

/// A class that stands for any type: every class test it makes succeeds.
class GELLO_API TRTTIGeneric : public TRTTIClass {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Generic;
  using TRTTIClass::TRTTIClass;
  TRTTINodeKind GetNodeKind() const override { return Kind; }
  bool IsGeneric() const override { return true; }
};

}  // namespace gello
