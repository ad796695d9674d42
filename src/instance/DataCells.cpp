#include "gello/instance/DataCells.h"

#include <cmath>
#include "../ocl/Int64Text.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/ValueText.h"

namespace gello {

String TRTTIStringData::GetasToken() const {
  String Token = u"'";
  for (char16_t C : FValue) {
    if (C == u'\'') Token += u'\'';
    Token += C;
  }
  return Token + u"'";
}

void TRTTIStringData::SetasToken(const String& Value) {
  if (Value.size() < 2 || Value.front() != u'\'' || Value.back() != u'\'') {
    FValue = Value;
    return;
  }
  FValue.clear();
  for (std::size_t i = 1; i + 1 < Value.size(); ++i) {
    FValue += Value[i];
    if (Value[i] == u'\'' && Value[i + 1] == u'\'') ++i;
  }
}

TJSON TRTTIStringData::ValueJSON(bool) const {
  return ToUTF8(FValue);
}

void TRTTIIntegerData::SetasString(const String& Value) {
  std::int64_t Parsed = 0;
  if (!TryStrToInt64(Value, Parsed))
    throw EConvertError(u"'" + Value + u"' is not a valid integer value");
  FValue = Parsed;
}

TJSON TRTTIIntegerData::ValueJSON(bool) const {
  return FValue;
}

String TRTTIRealData::GetasString() const {
  return ExtendedToString(FValue, true, -1);
}

void TRTTIRealData::SetasString(const String& Value) {
  FValue = StringToExtended(Value);
}

TJSON TRTTIRealData::ValueJSON(bool) const {
  // JSON has no NaN or infinities: those keep their text form.
  if (!std::isfinite(FValue)) return ToUTF8(GetasString());
  return static_cast<double>(FValue);
}

void TRTTIBooleanData::SetasString(const String& Value) {
  FValue = StringToExtendedBoolean(Value);
}

TJSON TRTTIBooleanData::ValueJSON(bool) const {
  // The raw code read as a two-valued Boolean: unknown (2) comes out as true.
  return FValue != rtti_false;
}

}  // namespace gello
