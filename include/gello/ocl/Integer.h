#pragma once
// Integers: 64-bit two's-complement arithmetic (wrapping) on values kept as extended floats.
#include <cstdint>
#include "gello/foundation/Export.h"
#include "gello/ocl/Real.h"

namespace gello {

/// Selects the constructor that keeps a float exactly as computed, whole or not.
struct TFromFloat {};

/// An Integer value; it is a Real too, and the Real operations run on its stored float.
class GELLO_API TOCLInteger : public TOCLReal, public virtual IOCLInteger {
 public:
  explicit TOCLInteger(std::int64_t Value = 0) : TOCLReal(static_cast<Extended>(Value)) {}
  TOCLInteger(TFromFloat, Extended Value) : TOCLReal(Value) {}
  explicit TOCLInteger(const Ref<IRTTIClass>& AClass) : TOCLReal(AClass) {}
  explicit TOCLInteger(const TUndefined& Reason) : TOCLReal(Reason) {}
  using TOCLReal::_ADD_;
  using TOCLReal::_MULTIPLY_;
  using TOCLReal::_SUBTRACT_;
  using TOCLReal::max;
  using TOCLReal::min;

  TJSON GetasCompactJSON() const override;
  void SetasString(const String& Value) override;
  void SetasCompactJSON(const TJSON& Value) override;
  Ref<IRTTIClass> GetInstanceType() const override;

  Ref<IOCLReal> abs() const override;
  Ref<IOCLReal> _NEGATE_() const override;
  std::int64_t GetasInt64() const override;
  Ref<IOCLInteger> max(IOCLInteger* rhs) const override;
  Ref<IOCLInteger> min(IOCLInteger* rhs) const override;
  void SetasInt64(std::int64_t Value) override { SetasExtended(static_cast<Extended>(Value)); }
  Ref<IOCLInteger> _ADD_(IOCLInteger* rhs) const override;
  Ref<IOCLInteger> _DIV_(IOCLInteger* rhs) const override;
  Ref<IOCLInteger> _MOD_(IOCLInteger* rhs) const override;
  Ref<IOCLInteger> _MULTIPLY_(IOCLInteger* rhs) const override;
  Ref<IOCLInteger> _SUBTRACT_(IOCLInteger* rhs) const override;

 protected:
  Ref<IOCLReal> MakeSameKind(Extended Value) const override;

 private:
  template <class Op>
  Ref<IOCLInteger> Arithmetic(IOCLInteger* rhs, const char16_t* Name, Op Fn) const;
};

}  // namespace gello
