#include "gello/expr/Literals.h"

#include <limits>

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/ValueText.h"

namespace gello {
namespace {

// The strict conversion: optional sign, decimal digits, and the value must fit 32 bits.
std::int32_t StrToInt(const String& Text) {
  std::size_t Pos = (!Text.empty() && (Text[0] == u'-' || Text[0] == u'+')) ? 1 : 0;
  const bool Negative = Pos == 1 && Text[0] == u'-';
  std::int64_t Magnitude = 0;
  bool Valid = Pos < Text.size();
  for (; Valid && Pos < Text.size(); ++Pos) {
    Valid = Text[Pos] >= u'0' && Text[Pos] <= u'9' && Magnitude <= (std::int64_t{1} << 31);
    Magnitude = Magnitude * 10 + (Text[Pos] - u'0');
  }
  const std::int64_t Value = Negative ? -Magnitude : Magnitude;
  if (!Valid || Value < std::numeric_limits<std::int32_t>::min() ||
      Value > std::numeric_limits<std::int32_t>::max())
    throw EConvertError(u"'" + Text + u"' is not a valid integer value");
  return static_cast<std::int32_t>(Value);
}

}  // namespace

TRTTITextLiteral::TRTTITextLiteral(const Ref<IRTTIClass>& Class, const String& Text)
    : TRTTILiteral(Class), FText(Text) {}

TRTTIIntegerLiteral::TRTTIIntegerLiteral(const Ref<IRTTIClass>& Class, std::int64_t Value)
    : TRTTILiteral(Class), FValue(Value) {}

void TRTTIIntegerLiteral::SetasString(const String& Value) {
  // Narrower than the storage on purpose: a 64-bit literal is written but not read back.
  FValue = StrToInt(Value);
}

TRTTIRealLiteral::TRTTIRealLiteral(const Ref<IRTTIClass>& Class, double Value)
    : TRTTILiteral(Class), FValue(Value) {}

String TRTTIRealLiteral::GetasString() const {
  return ExtendedToString(FValue, true, -1);
}

void TRTTIRealLiteral::SetasString(const String& Value) {
  FValue = static_cast<double>(StringToExtended(Value));
}

TRTTIBooleanLiteral::TRTTIBooleanLiteral(const Ref<IRTTIClass>& Class, TRTTIExtendedBoolean Value)
    : TRTTILiteral(Class), FValue(Value) {}

TRTTIBooleanLiteral::TRTTIBooleanLiteral(const Ref<IRTTIClass>& Class, bool Value)
    : TRTTILiteral(Class), FValue(Value ? rtti_true : rtti_false) {}

TRTTIEnumLiteral::TRTTIEnumLiteral(const String& Name, const Ref<IRTTIClass>& Class,
                                   std::int32_t Ordinal)
    : TRTTILiteral(Class), FOrdinal(Ordinal) {
  SetName(Name);
}

}  // namespace gello
