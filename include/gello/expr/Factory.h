#pragma once
// The value node that stands for making an instance of a class.
#include "gello/expr/Value.h"
#include "gello/foundation/Export.h"

namespace gello {

/// A value typed by the class it makes instances of.
class GELLO_API TRTTIFactory : public TRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Factory;
  using TRTTIValue::TRTTIValue;
  TRTTINodeKind GetNodeKind() const override { return Kind; }
};

}  // namespace gello
