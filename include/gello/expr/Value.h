#pragma once
// Expression nodes: every node is an element with a value type.
#include "gello/foundation/Export.h"
#include "gello/model/Element.h"

namespace gello {

/// A node of a compiled expression; the value type is the type of its result.
class GELLO_API TRTTIValue : public TRTTIElement, public virtual IRTTIValue {
 public:
  static constexpr TRTTINodeKind Kind = TRTTINodeKind::Value;
  static constexpr TNodeKindRange Kinds{Kind, TRTTINodeKind::ClassLiteral};
  /// The reader's form: named, without a type yet.
  explicit TRTTIValue(String Name);
  /// An unnamed node of that type.
  explicit TRTTIValue(const Ref<IRTTIClass>& ValueType);
  ~TRTTIValue() override;

  TRTTINodeKind GetNodeKind() const override { return Kind; }
  Ref<IRTTIClass> GetValueType() const override { return FValueType; }
  void SetValueType(const Ref<IRTTIClass>& Value) override { FValueType = Value; }
  void Resolve(IRTTIScope* Scope) override;
  void Clear() override;

 private:
  Ref<IRTTIClass> FValueType;
};

}  // namespace gello
