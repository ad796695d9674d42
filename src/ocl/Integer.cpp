#include "gello/ocl/Integer.h"

#include <cmath>
#include "Int64Text.h"
#include "Ordering.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {

using Int64 = std::int64_t;
using UInt64 = std::uint64_t;

// Two's-complement arithmetic goes through unsigned values, where wrapping is defined.
Int64 WrapAdd(Int64 a, Int64 b) {
  return static_cast<Int64>(static_cast<UInt64>(a) + static_cast<UInt64>(b));
}

Int64 WrapSubtract(Int64 a, Int64 b) {
  return static_cast<Int64>(static_cast<UInt64>(a) - static_cast<UInt64>(b));
}

Int64 WrapMultiply(Int64 a, Int64 b) {
  return static_cast<Int64>(static_cast<UInt64>(a) * static_cast<UInt64>(b));
}

void CheckDivisor(Int64 b) {
  if (b == 0) throw EDivByZero(u"Division by zero");
}

// Truncates toward zero; the least Int64 divided by -1 wraps to itself.
Int64 TruncatedDiv(Int64 a, Int64 b) {
  CheckDivisor(b);
  return b == -1 ? WrapSubtract(0, a) : a / b;
}

// The remainder takes the dividend's sign.
Int64 TruncatedMod(Int64 a, Int64 b) {
  CheckDivisor(b);
  return b == -1 ? 0 : a % b;
}

}  // namespace

template <class Op>
Ref<IOCLInteger> TOCLInteger::Arithmetic(IOCLInteger* rhs, const char16_t* Name, Op Fn) const {
  if (!rhs) return MakeRef<TOCLInteger>(TUndefined{u"nil operand of " + String(Name)});
  return MakeRef<TOCLInteger>(Fn(GetasInt64(), rhs->GetasInt64()));
}

std::int64_t TOCLInteger::GetasInt64() const {
  // llrint rounds in the current mode, which is ties-to-even.
  return static_cast<Int64>(std::llrint(GetasExtended()));
}

Ref<IOCLReal> TOCLInteger::MakeSameKind(Extended Value) const {
  return MakeRef<TOCLInteger>(TFromFloat{}, Value);
}

TJSON TOCLInteger::GetasCompactJSON() const {
  // A whole value is a JSON integer, exact over the whole 64-bit range.
  Extended Value = GetasExtended();
  if (!std::isfinite(Value) || Value != std::trunc(Value)) return TOCLReal::GetasCompactJSON();
  return GetasInt64();
}

void TOCLInteger::SetasString(const String& Value) {
  Int64 Parsed = 0;
  SetasInt64(TryStrToInt64(Value, Parsed) ? Parsed : 0);
}

void TOCLInteger::SetasCompactJSON(const TJSON& Value) {
  if (Value.is_number_integer())
    SetasInt64(Value.get<Int64>());
  else
    TOCLReal::SetasCompactJSON(Value);
}

Ref<IRTTIClass> TOCLInteger::GetInstanceType() const {
  return OCLSystemClasses().Integer;
}

Ref<IOCLReal> TOCLInteger::abs() const {
  return MakeSameKind(std::fabs(GetasExtended()));
}

Ref<IOCLReal> TOCLInteger::_NEGATE_() const {
  return MakeRef<TOCLInteger>(WrapSubtract(0, GetasInt64()));
}

Ref<IOCLInteger> TOCLInteger::max(IOCLInteger* rhs) const {
  if (!rhs) return MakeRef<TOCLInteger>(TUndefined{u"nil operand of max"});
  return MakeRef<TOCLInteger>(TFromFloat{},
                              PickMax(GetasExtended(), static_cast<Extended>(rhs->GetasInt64())));
}

Ref<IOCLInteger> TOCLInteger::min(IOCLInteger* rhs) const {
  if (!rhs) return MakeRef<TOCLInteger>(TUndefined{u"nil operand of min"});
  return MakeRef<TOCLInteger>(TFromFloat{},
                              PickMin(GetasExtended(), static_cast<Extended>(rhs->GetasInt64())));
}

Ref<IOCLInteger> TOCLInteger::_ADD_(IOCLInteger* rhs) const {
  return Arithmetic(rhs, u"_ADD_", WrapAdd);
}

Ref<IOCLInteger> TOCLInteger::_SUBTRACT_(IOCLInteger* rhs) const {
  return Arithmetic(rhs, u"_SUBTRACT_", WrapSubtract);
}

Ref<IOCLInteger> TOCLInteger::_MULTIPLY_(IOCLInteger* rhs) const {
  return Arithmetic(rhs, u"_MULTIPLY_", WrapMultiply);
}

Ref<IOCLInteger> TOCLInteger::_DIV_(IOCLInteger* rhs) const {
  return Arithmetic(rhs, u"_DIV_", TruncatedDiv);
}

Ref<IOCLInteger> TOCLInteger::_MOD_(IOCLInteger* rhs) const {
  return Arithmetic(rhs, u"_MOD_", TruncatedMod);
}

}  // namespace gello
