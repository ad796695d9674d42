#include "gello/foundation/ValueText.h"

#include <locale.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {

// The x87 special values, built from their bit patterns: mantissa, then sign and exponent word.
Extended FromBits(std::uint64_t Mantissa, std::uint16_t SignExponent) {
  Extended Value = 0;
  std::memcpy(&Value, &Mantissa, 8);
  std::memcpy(reinterpret_cast<char*>(&Value) + 8, &SignExponent, 2);
  return Value;
}

// A decimal rounding of a real: value = 0.Digits x 10^Exponent; Digits has no trailing zeros
// and is empty for zero.
struct TDecimal {
  bool Negative = false;
  std::string Digits;
  int Exponent = 0;
};

// The significant digits of |Value| in "%.*Le" form and its exponent (as 0.ddd x 10^Exponent).
void PrintDigits(Extended Value, int Precision, std::string& Digits, int& Exponent) {
  std::string Text(Precision + 32, '\0');
  const int Length = std::snprintf(Text.data(), Text.size(), "%.*Le", Precision, std::fabs(Value));
  Text.resize(Length);
  const std::size_t E = Text.find('e');
  Exponent = std::atoi(Text.c_str() + E + 1) + 1;
  Digits = Text.substr(0, 1) + Text.substr(2, E - 2);
}

// 1 when the digits from Keep onwards round the kept ones up (half away from zero), 0 when not,
// -1 when the tail is a 5 followed only by zeros: a tie if the digits are exact.
int RoundsUp(const std::string& Digits, std::size_t Keep) {
  if (Keep >= Digits.size() || Digits[Keep] < '5') return 0;
  if (Digits[Keep] > '5') return 1;
  const bool RestZero = std::all_of(Digits.begin() + Keep + 1, Digits.end(), [](char C) { return C == '0'; });
  return RestZero ? -1 : 1;
}

// Rounds |Value| half away from zero to at most Precision significant digits and at most Decimals
// digits after the point.
TDecimal ToDecimal(Extended Value, int Precision, int Decimals) {
  TDecimal Result;
  if (Value == 0) return Result;
  std::string Digits;
  int Exponent;
  PrintDigits(Value, 40, Digits, Exponent);
  const int Keep = std::min(Precision, Exponent + Decimals);
  if (Keep < 0) return Result;
  int Up = RoundsUp(Digits, Keep);
  if (Up < 0) {
    // Decide an apparent tie on the exact expansion; the exact value of a long double has at
    // most a few thousand significant digits.
    PrintDigits(Value, 16500, Digits, Exponent);
    Up = RoundsUp(Digits, Keep) != 0;
  }
  Digits.resize(Keep);
  if (Up) {
    int i = Keep - 1;
    while (i >= 0 && Digits[i] == '9') Digits[i--] = '0';
    if (i >= 0) {
      ++Digits[i];
    } else {
      Digits.insert(Digits.begin(), '1');
      ++Exponent;
    }
  }
  while (!Digits.empty() && Digits.back() == '0') Digits.pop_back();
  if (Digits.empty()) return Result;
  Result.Negative = Value < 0;
  Result.Digits = std::move(Digits);
  Result.Exponent = Exponent;
  return Result;
}

std::string Sign(const TDecimal& D) { return D.Negative ? "-" : ""; }

std::string Scientific(const TDecimal& D) {
  std::string Text = Sign(D) + D.Digits.substr(0, 1);
  if (D.Digits.size() > 1) Text += "." + D.Digits.substr(1);
  return Text + "E" + std::to_string(D.Exponent - 1);
}

// Plain notation with at least MinDecimals digits after the point.
std::string Plain(const TDecimal& D, int MinDecimals) {
  std::string Integer, Fraction;
  if (D.Exponent > 0) {
    Integer = D.Digits.substr(0, std::min<std::size_t>(D.Exponent, D.Digits.size()));
    Integer.resize(D.Exponent, '0');
    if (static_cast<int>(D.Digits.size()) > D.Exponent) Fraction = D.Digits.substr(D.Exponent);
  } else {
    Integer = "0";
    Fraction = std::string(-D.Exponent, '0') + D.Digits;
  }
  if (static_cast<int>(Fraction.size()) < MinDecimals) Fraction.resize(MinDecimals, '0');
  return Sign(D) + Integer + (Fraction.empty() ? "" : "." + Fraction);
}

std::string General(Extended Value, int Precision) {
  const TDecimal D = ToDecimal(Value, Precision, 1 << 20);
  const bool PlainFits = D.Digits.empty() || (D.Exponent <= Precision && D.Exponent >= -4);
  return PlainFits ? Plain(D, 0) : Scientific(D);
}

std::string Fixed(Extended Value, int Precision, int Decimals) {
  Decimals = std::min(Decimals, 18);
  const TDecimal D = ToDecimal(Value, Precision, Decimals);
  if (D.Exponent > Precision) return General(Value, Precision);
  return Plain(D, Decimals);
}

bool IsDigit(char C) { return C >= '0' && C <= '9'; }

// [+-] digits [. digits] [(e|E) [+-] digits], with digits on at least one side of the point.
bool IsDecimalNumber(const std::string& S) {
  std::size_t i = 0, Mantissa = 0;
  if (i < S.size() && (S[i] == '+' || S[i] == '-')) ++i;
  for (; i < S.size() && IsDigit(S[i]); ++i) ++Mantissa;
  if (i < S.size() && S[i] == '.')
    for (++i; i < S.size() && IsDigit(S[i]); ++i) ++Mantissa;
  if (Mantissa == 0) return false;
  if (i < S.size() && (S[i] == 'e' || S[i] == 'E')) {
    ++i;
    if (i < S.size() && (S[i] == '+' || S[i] == '-')) ++i;
    const std::size_t ExponentStart = i;
    while (i < S.size() && IsDigit(S[i])) ++i;
    if (i == ExponentStart) return false;
  }
  return i == S.size();
}

locale_t CLocale() {
  static const locale_t Locale = newlocale(LC_ALL_MASK, "C", nullptr);
  return Locale;
}

}  // namespace

Extended StringToExtended(StringView Text) {
  if (Text == u"NAN") return FromBits(0xC000000000000000ull, 0xFFFF);
  if (Text == u"INF") return FromBits(0x8000000000000000ull, 0x7FFF);
  if (Text == u"-INF") return FromBits(0x8000000000000000ull, 0xFFFF);
  const std::string Bytes = ToLatin1(Text);
  if (!IsDecimalNumber(Bytes))
    throw EConvertError(u"'" + String(Text) + u"' is not a valid floating point value");
  return strtold_l(Bytes.c_str(), nullptr, CLocale());
}

String ExtendedToString(Extended Value, bool HighPrecision, std::int32_t Digits) {
  if (std::isnan(Value)) return u"NAN";
  if (std::isinf(Value)) return Value > 0 ? u"INF" : u"-INF";
  const int Precision = HighPrecision ? 18 : 15;
  return FromLatin1(Digits < 0 ? General(Value, Precision) : Fixed(Value, Precision, Digits));
}

}  // namespace gello
