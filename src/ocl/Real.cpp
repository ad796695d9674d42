#include "gello/ocl/Real.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include "Ordering.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/ValueText.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/StringMaker.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {

// The x87 integer-indefinite answer for results outside the 32-bit range, NaN included.
std::int64_t ToInt32Widened(Extended Whole) {
  constexpr auto Low = std::numeric_limits<std::int32_t>::min();
  constexpr auto High = std::numeric_limits<std::int32_t>::max();
  if (!(Whole >= Low && Whole <= High)) return Low;
  return static_cast<std::int32_t>(Whole);
}

}  // namespace

Ref<IOCLReal> NilOperandReal(const char16_t* Operation) {
  return MakeRef<TOCLReal>(TUndefined{u"nil operand of " + String(Operation)});
}

template <class Op>
Ref<IOCLReal> TOCLReal::Arithmetic(IOCLReal* rhs, const char16_t* Name, Op Fn) const {
  if (!rhs) return NilOperandReal(Name);
  return MakeRef<TOCLReal>(Fn(FasExtended, rhs->GetasExtended()));
}

template <class Op>
Ref<IOCLBoolean> TOCLReal::Compare(IOCLReal* rhs, Op Fn) const {
  if (!rhs) return TOCLBoolean::UndefinedBoolean();
  return TOCLBoolean::BooleanValue(Fn(FasExtended, rhs->GetasExtended()));
}

Ref<IOCLReal> TOCLReal::MakeSameKind(Extended Value) const {
  return MakeRef<TOCLReal>(Value);
}

String TOCLReal::NumberText() const {
  return ExtendedToString(FasExtended, false, -1);
}

TJSON TOCLReal::GetasCompactJSON() const {
  // JSON has no NaN or infinities: those keep their text form.
  if (!std::isfinite(FasExtended)) return ToUTF8(ExtendedToString(FasExtended, false, -1));
  return static_cast<double>(FasExtended);
}

TJSON TOCLReal::GetasJSON() const {
  TJSON Result = TOCLAny::GetasJSON();
  Result[".value"] = GetasCompactJSON();
  return Result;
}

String TOCLReal::GetasString() const {
  return IsDefined() ? NumberText() : TOCLAny::GetasString();
}

void TOCLReal::SetasString(const String& Value) {
  FasExtended = Value.empty() ? 0 : StringToExtended(Value);
}

void TOCLReal::SetasCompactJSON(const TJSON& Value) {
  if (Value.is_number())
    FasExtended = Value.get<double>();
  else if (Value.is_string())
    SetasString(FromUTF8(Value.get<std::string>()));
}

void TOCLReal::SetasJSON(const TJSON& Value) {
  if (Value.is_object() && Value.contains(".value")) SetasCompactJSON(Value[".value"]);
}

Ref<IRTTIClass> TOCLReal::GetInstanceType() const {
  return OCLSystemClasses().Real;
}

bool TOCLReal::isEqual(IOCLAny* Other) const {
  auto* Rhs = CachedCast<IOCLReal>(Other);
  return Rhs && Rhs->GetasExtended() == FasExtended;
}

bool TOCLReal::_LessThan(IOCLAny* Other) const {
  if (!Other) return false;
  auto* Rhs = CachedCast<IOCLReal>(Other);
  if (!Rhs) throw EOCLException(u"Data types are incompatible for sorting.");
  return FasExtended < Rhs->GetasExtended();
}

Ref<IOCLReal> TOCLReal::abs() const {
  return MakeSameKind(std::fabs(FasExtended));
}

Ref<IOCLInteger> TOCLReal::ceiling() const {
  return MakeRef<TOCLInteger>(ToInt32Widened(std::ceil(FasExtended)));
}

Ref<IOCLInteger> TOCLReal::floor() const {
  return MakeRef<TOCLInteger>(ToInt32Widened(std::floor(FasExtended)));
}

Ref<IOCLReal> TOCLReal::inverted() const {
  return MakeRef<TOCLReal>(1 / FasExtended);
}

Ref<IOCLReal> TOCLReal::max(IOCLReal* rhs) const {
  if (!rhs) return NilOperandReal(u"max");
  return MakeSameKind(PickMax(FasExtended, rhs->GetasExtended()));
}

Ref<IOCLReal> TOCLReal::min(IOCLReal* rhs) const {
  if (!rhs) return NilOperandReal(u"min");
  return MakeSameKind(PickMin(FasExtended, rhs->GetasExtended()));
}

Ref<IOCLReal> TOCLReal::power(IOCLReal* rhs) const {
  return Arithmetic(rhs, u"power", [](Extended x, Extended y) { return std::pow(x, y); });
}

Ref<IOCLInteger> TOCLReal::round() const {
  // llrint rounds in the current mode, which is ties-to-even.
  return MakeRef<TOCLInteger>(static_cast<std::int64_t>(std::llrint(FasExtended)));
}

Ref<IOCLString> TOCLReal::toChar() const {
  return MakeOCLString(NumberText());
}

Ref<IOCLString> TOCLReal::toCharFormat(IOCLInteger* decimalPlaces) const {
  if (!decimalPlaces) return toChar();
  // The low 32 bits of the count, as the conversion takes a 32-bit count.
  auto Digits = static_cast<std::int32_t>(static_cast<std::uint64_t>(decimalPlaces->GetasInt64()));
  return MakeOCLString(ExtendedToString(FasExtended, true, Digits));
}

Ref<IOCLReal> TOCLReal::_ADD_(IOCLReal* rhs) const {
  return Arithmetic(rhs, u"_ADD_", std::plus<Extended>());
}

Ref<IOCLReal> TOCLReal::_SUBTRACT_(IOCLReal* rhs) const {
  return Arithmetic(rhs, u"_SUBTRACT_", std::minus<Extended>());
}

Ref<IOCLReal> TOCLReal::_MULTIPLY_(IOCLReal* rhs) const {
  return Arithmetic(rhs, u"_MULTIPLY_", std::multiplies<Extended>());
}

Ref<IOCLReal> TOCLReal::_DIVIDE_(IOCLReal* rhs) const {
  return Arithmetic(rhs, u"_DIVIDE_", std::divides<Extended>());
}

Ref<IOCLReal> TOCLReal::_NEGATE_() const {
  return MakeRef<TOCLReal>(-FasExtended);
}

Ref<IOCLBoolean> TOCLReal::_EQ_(IOCLReal* rhs) const {
  return Compare(rhs, std::equal_to<Extended>());
}

Ref<IOCLBoolean> TOCLReal::_NE_(IOCLReal* rhs) const {
  return Compare(rhs, std::not_equal_to<Extended>());
}

Ref<IOCLBoolean> TOCLReal::_LT_(IOCLReal* rhs) const {
  return Compare(rhs, std::less<Extended>());
}

Ref<IOCLBoolean> TOCLReal::_LE_(IOCLReal* rhs) const {
  return Compare(rhs, std::less_equal<Extended>());
}

Ref<IOCLBoolean> TOCLReal::_GT_(IOCLReal* rhs) const {
  return Compare(rhs, std::greater<Extended>());
}

Ref<IOCLBoolean> TOCLReal::_GE_(IOCLReal* rhs) const {
  return Compare(rhs, std::greater_equal<Extended>());
}

}  // namespace gello
