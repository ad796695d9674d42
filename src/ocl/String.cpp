#include "gello/ocl/String.h"

#include "StringText.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/ValueText.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/StringMaker.h"
#include "gello/ocl/SystemClasses.h"

namespace gello {

namespace {

Ref<IOCLString> MakeString(const String& Text) {
  return MakeRef<TOCLString>(Text);
}

// Numbers and Booleans make their text results through this slot, filled when the library loads.
[[maybe_unused]] const bool MakerRegistered = (SetOCLStringMaker(MakeString), true);

Ref<IOCLString> NilOperand(const char16_t* Operation) {
  return MakeRef<TOCLString>(TUndefined{u"nil operand of " + String(Operation)});
}

// Integer arguments count by their low 32 bits.
std::int32_t Low32(IOCLInteger* Value) {
  return static_cast<std::int32_t>(Value->GetasInt64());
}

}  // namespace

String TOCLString::GetasToken() const {
  return QuoteToken(FasString);
}

void TOCLString::SetasToken(const String& Value) {
  FasString = UnquoteToken(Value);
}

TJSON TOCLString::GetasCompactJSON() const {
  return ToUTF8(FasString);
}

TJSON TOCLString::GetasJSON() const {
  TJSON Result = TOCLAny::GetasJSON();
  Result[".value"] = GetasCompactJSON();
  return Result;
}

void TOCLString::SetasCompactJSON(const TJSON& Value) {
  if (Value.is_string()) FasString = FromUTF8(Value.get<std::string>());
}

void TOCLString::SetasJSON(const TJSON& Value) {
  if (Value.is_object() && Value.contains(".value")) SetasCompactJSON(Value[".value"]);
}

Ref<IRTTIClass> TOCLString::GetInstanceType() const {
  return OCLSystemClasses().String;
}

bool TOCLString::isEqual(IOCLAny* Other) const {
  auto* Rhs = CachedCast<IOCLString>(Other);
  return Rhs && Rhs->GetasString() == FasString;
}

bool TOCLString::_LessThan(IOCLAny* Other) const {
  if (!Other) return false;
  auto* Rhs = CachedCast<IOCLString>(Other);
  if (!Rhs) throw EOCLException(u"Data types are incompatible for sorting.");
  return FasString < Rhs->GetasString();
}

Ref<IOCLString> TOCLString::concat(IOCLString* rhs) const {
  if (!rhs) return NilOperand(u"concat");
  return MakeRef<TOCLString>(FasString + rhs->GetasString());
}

Ref<IOCLString> TOCLString::lpad(IOCLInteger* size, IOCLString* padChar) const {
  if (!size || !padChar) return NilOperand(u"lpad");
  return MakeRef<TOCLString>(RepeatText(Low32(size), padChar->GetasString()) + FasString);
}

Ref<IOCLString> TOCLString::rpad(IOCLInteger* size, IOCLString* padChar) const {
  if (!size || !padChar) return NilOperand(u"rpad");
  return MakeRef<TOCLString>(FasString + RepeatText(Low32(size), padChar->GetasString()));
}

Ref<IOCLString> TOCLString::ltrim(IOCLString* trimChars) const {
  if (!trimChars) return NilOperand(u"ltrim");
  return MakeRef<TOCLString>(TrimLeading(FasString, trimChars->GetasString()));
}

Ref<IOCLString> TOCLString::rtrim(IOCLString* trimChars) const {
  if (!trimChars) return NilOperand(u"rtrim");
  return MakeRef<TOCLString>(TrimTrailing(FasString, trimChars->GetasString()));
}

Ref<IOCLString> TOCLString::replace(IOCLString* replaceThis, IOCLString* withThis) const {
  if (!replaceThis || !withThis) return NilOperand(u"replace");
  return MakeRef<TOCLString>(
      ReplaceRestarting(FasString, replaceThis->GetasString(), withThis->GetasString()));
}

Ref<IOCLInteger> TOCLString::size() const {
  return MakeRef<TOCLInteger>(static_cast<std::int64_t>(FasString.size()));
}

Ref<IOCLString> TOCLString::substring(IOCLInteger* lower, IOCLInteger* upper) const {
  if (!lower || !upper) return NilOperand(u"substring");
  std::int64_t First = Low32(lower);
  return MakeRef<TOCLString>(CopyClipped(FasString, First, Low32(upper) - First + 1));
}

Ref<IOCLInteger> TOCLString::toInteger() const {
  return MakeRef<TOCLInteger>(StrToInt32(FasString));
}

Ref<IOCLReal> TOCLString::toReal() const {
  return MakeRef<TOCLReal>(StringToExtended(FasString));
}

Ref<IOCLString> TOCLString::toUpper() const {
  return MakeRef<TOCLString>(AsciiUpper(FasString));
}

Ref<IOCLString> TOCLString::toLower() const {
  return MakeRef<TOCLString>(AsciiLower(FasString));
}

Ref<IOCLBoolean> TOCLString::_EQ_(IOCLString* rhs) const {
  if (!rhs) return TOCLBoolean::UndefinedBoolean();
  return TOCLBoolean::BooleanValue(FasString == rhs->GetasString());
}

Ref<IOCLBoolean> TOCLString::_NE_(IOCLString* rhs) const {
  if (!rhs) return TOCLBoolean::UndefinedBoolean();
  return TOCLBoolean::BooleanValue(FasString != rhs->GetasString());
}

}  // namespace gello
