#pragma once
// Real numbers on 80-bit extended floats; arithmetic follows IEEE (no test for zero divisors).
#include "gello/foundation/Export.h"
#include "gello/ocl/Any.h"

namespace gello {

/// A Real value.
class GELLO_API TOCLReal : public TOCLAny, public virtual IOCLReal {
 public:
  explicit TOCLReal(Extended Value = 0) : FasExtended(Value) {}
  /// A Real of a model class; it starts at 0.
  explicit TOCLReal(const Ref<IRTTIClass>& AClass) : TOCLAny(AClass) {}
  explicit TOCLReal(const TUndefined& Reason) : TOCLAny(Reason) {}
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;

  TJSON GetasCompactJSON() const override;
  TJSON GetasJSON() const override;
  String GetasString() const override;
  void SetasString(const String& Value) override;
  void SetasCompactJSON(const TJSON& Value) override;
  void SetasJSON(const TJSON& Value) override;
  Ref<IRTTIClass> GetInstanceType() const override;
  bool isEqual(IOCLAny* Other) const override;
  bool _LessThan(IOCLAny* Other) const override;

  Ref<IOCLReal> abs() const override;
  Ref<IOCLInteger> ceiling() const override;
  Ref<IOCLInteger> floor() const override;
  Extended GetasExtended() const override { return FasExtended; }
  Ref<IOCLReal> inverted() const override;
  Ref<IOCLReal> max(IOCLReal* rhs) const override;
  Ref<IOCLReal> min(IOCLReal* rhs) const override;
  Ref<IOCLReal> power(IOCLReal* rhs) const override;
  Ref<IOCLInteger> round() const override;
  void SetasExtended(Extended Value) override { FasExtended = Value; }
  Ref<IOCLString> toChar() const override;
  Ref<IOCLString> toCharFormat(IOCLInteger* decimalPlaces) const override;
  Ref<IOCLReal> _ADD_(IOCLReal* rhs) const override;
  Ref<IOCLReal> _DIVIDE_(IOCLReal* rhs) const override;
  Ref<IOCLBoolean> _EQ_(IOCLReal* rhs) const override;
  Ref<IOCLBoolean> _GE_(IOCLReal* rhs) const override;
  Ref<IOCLBoolean> _GT_(IOCLReal* rhs) const override;
  Ref<IOCLBoolean> _LE_(IOCLReal* rhs) const override;
  Ref<IOCLBoolean> _LT_(IOCLReal* rhs) const override;
  Ref<IOCLReal> _MULTIPLY_(IOCLReal* rhs) const override;
  Ref<IOCLReal> _NEGATE_() const override;
  Ref<IOCLBoolean> _NE_(IOCLReal* rhs) const override;
  Ref<IOCLReal> _SUBTRACT_(IOCLReal* rhs) const override;

 protected:
  /// A new value of the receiver's own class holding Value exactly (max, min and abs keep the
  /// receiver's kind).
  virtual Ref<IOCLReal> MakeSameKind(Extended Value) const;
  /// The text of the number alone, an Integer's too: the general float format.
  String NumberText() const;

 private:
  template <class Op>
  Ref<IOCLReal> Arithmetic(IOCLReal* rhs, const char16_t* Name, Op Fn) const;
  template <class Op>
  Ref<IOCLBoolean> Compare(IOCLReal* rhs, Op Fn) const;

  Extended FasExtended = 0;
};

/// The value made for an operation whose right operand is nil: undefined, with the reason.
GELLO_API Ref<IOCLReal> NilOperandReal(const char16_t* Operation);

}  // namespace gello
