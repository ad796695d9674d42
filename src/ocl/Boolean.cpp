#include "gello/ocl/Boolean.h"

#include "gello/foundation/Exceptions.h"
#include "gello/ocl/StringMaker.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {

struct TSharedBooleans {
  Ref<IOCLBoolean> Values[3];
  Ref<IOCLBoolean> Undefined;
};

// Made once, on first use, and released at process end.
const TSharedBooleans& Shared() noexcept {
  using S = TOCLBooleanValue::TShared;
  static const TSharedBooleans Booleans{
      {MakeRef<TOCLBooleanValue>(S{}, rtti_false), MakeRef<TOCLBooleanValue>(S{}, rtti_true),
       MakeRef<TOCLBooleanValue>(S{}, rtti_unknown)},
      MakeRef<TOCLBooleanValue>(S{}, TUndefined{String()})};
  return Booleans;
}

bool IsValid(TRTTIExtendedBoolean Value) {
  return Value <= rtti_unknown;
}

}  // namespace

Ref<IOCLBoolean> TOCLBoolean::BooleanValue(bool Value) noexcept {
  return Shared().Values[Value ? rtti_true : rtti_false];
}

Ref<IOCLBoolean> TOCLBoolean::BooleanValue(TRTTIExtendedBoolean Value) noexcept {
  return IsValid(Value) ? Shared().Values[Value] : nullptr;
}

Ref<IOCLBoolean> TOCLBoolean::UndefinedBoolean() noexcept {
  return Shared().Undefined;
}

TJSON TOCLBoolean::GetasCompactJSON() const {
  TRTTIExtendedBoolean Value = GetasExtendedBoolean();
  if (Value == rtti_unknown)
    return TJSON{{"#type", ToUTF8(InstanceTypeName())}, {"#value", "unknown"}};
  return Value == rtti_true;
}

TJSON TOCLBoolean::GetasJSON() const {
  TJSON Result = TOCLAny::GetasJSON();
  TRTTIExtendedBoolean Value = GetasExtendedBoolean();
  if (Value == rtti_unknown)
    Result[".value"] = "unknown";
  else
    Result[".value"] = Value == rtti_true;
  return Result;
}

void TOCLBoolean::SetasCompactJSON(const TJSON& Value) {
  if (Value.is_boolean())
    SetasBoolean(Value.get<bool>());
  else if (Value.is_object() && Value.value("#value", "") == "unknown")
    SetasExtendedBoolean(rtti_unknown);
}

void TOCLBoolean::SetasJSON(const TJSON& Value) {
  if (!Value.is_object() || !Value.contains(".value")) return;
  const TJSON& Inner = Value[".value"];
  if (Inner.is_string() && Inner.get<std::string>() == "unknown")
    SetasExtendedBoolean(rtti_unknown);
  else
    SetasCompactJSON(Inner);
}

String TOCLBoolean::GetasString() const {
  if (!IsDefined()) return TOCLAny::GetasString();
  return ExtendedBooleanToString(GetasExtendedBoolean());
}

void TOCLBoolean::SetasString(const String& Value) {
  SetasExtendedBoolean(StringToExtendedBoolean(Value));
}

Ref<IRTTIClass> TOCLBoolean::GetInstanceType() const {
  return OCLSystemClasses().Boolean;
}

bool TOCLBoolean::isEqual(IOCLAny* Other) const {
  auto* Rhs = CachedCast<IOCLBoolean>(Other);
  return Rhs && Rhs->GetasExtendedBoolean() == GetasExtendedBoolean();
}

bool TOCLBoolean::GetasBoolean() const {
  TRTTIExtendedBoolean Value = GetasExtendedBoolean();
  if (Value == rtti_unknown)
    throw EOCLException(u"unable to convert extended boolean \"unknown\" value");
  return Value == rtti_true;
}

Ref<IOCLString> TOCLBoolean::asOCLString() const {
  return MakeOCLString(GetasString());
}

Ref<IOCLBoolean> TOCLBoolean::LookUp(const TRTTIExtendedBoolean (&Table)[9],
                                     IOCLBoolean* rhs) const {
  if (!rhs) return UndefinedBoolean();
  TRTTIExtendedBoolean Left = GetasExtendedBoolean(), Right = rhs->GetasExtendedBoolean();
  if (!IsValid(Left) || !IsValid(Right)) return UndefinedBoolean();
  return Shared().Values[Table[Left * 3 + Right]];
}

Ref<IOCLBoolean> TOCLBoolean::implies(IOCLBoolean* rhs) const {
  return LookUp(truth_table_implies, rhs);
}

Ref<IOCLBoolean> TOCLBoolean::_AND_(IOCLBoolean* rhs) const {
  return LookUp(truth_table_and, rhs);
}

Ref<IOCLBoolean> TOCLBoolean::_OR_(IOCLBoolean* rhs) const {
  return LookUp(truth_table_or, rhs);
}

Ref<IOCLBoolean> TOCLBoolean::_XOR_(IOCLBoolean* rhs) const {
  return LookUp(truth_table_xor, rhs);
}

Ref<IOCLBoolean> TOCLBoolean::_NOT_() const {
  TRTTIExtendedBoolean Value = GetasExtendedBoolean();
  return IsValid(Value) ? Shared().Values[truth_table_not[Value]] : UndefinedBoolean();
}

Ref<IOCLBoolean> TOCLBoolean::_EQ_(IOCLBoolean* rhs) const {
  if (!rhs) return UndefinedBoolean();
  return BooleanValue(GetasExtendedBoolean() == rhs->GetasExtendedBoolean());
}

Ref<IOCLBoolean> TOCLBoolean::_NE_(IOCLBoolean* rhs) const {
  if (!rhs) return UndefinedBoolean();
  return BooleanValue(GetasExtendedBoolean() != rhs->GetasExtendedBoolean());
}

void TOCLBooleanValue::SetasExtendedBoolean(TRTTIExtendedBoolean Value) {
  if (FReadOnly)
    throw EOCLException(u"unable to change shared boolean \"" +
                        ExtendedBooleanToString(FasExtendedBoolean) + u"\" value");
  FasExtendedBoolean = Value;
}

}  // namespace gello
