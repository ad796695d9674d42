#include "gello/foundation/ValueText.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstring>

#include "gello/foundation/Exceptions.h"

using namespace gello;

namespace {

void ExpectBits(Extended Value, std::uint64_t Mantissa, std::uint16_t SignExponent) {
  std::uint64_t M;
  std::uint16_t SE;
  std::memcpy(&M, &Value, 8);
  std::memcpy(&SE, reinterpret_cast<const char*>(&Value) + 8, 2);
  EXPECT_EQ(M, Mantissa);
  EXPECT_EQ(SE, SignExponent);
}

String General(Extended V, bool High = false) {
  return ExtendedToString(V, High, -1);
}

// Switches the process to a locale whose decimal separator is a comma, where one is installed.
class CommaLocale {
 public:
  CommaLocale() : FSaved(std::setlocale(LC_ALL, nullptr)) {
    for (const char* Name : {"de_DE.UTF-8", "fr_FR.UTF-8", "de_DE", "C.UTF-8"})
      if (std::setlocale(LC_ALL, Name) && std::strcmp(std::localeconv()->decimal_point, ",") == 0) {
        FActive = true;
        return;
      }
    std::setlocale(LC_ALL, FSaved.c_str());
  }
  ~CommaLocale() { std::setlocale(LC_ALL, FSaved.c_str()); }
  bool Active() const { return FActive; }

 private:
  std::string FSaved;
  bool FActive = false;
};

}  // namespace

TEST(ValueText, SpecialTextsGiveTheExactX87Values) {
  ExpectBits(StringToExtended(u"NAN"), 0xC000000000000000ull, 0xFFFF);
  ExpectBits(StringToExtended(u"INF"), 0x8000000000000000ull, 0x7FFF);
  ExpectBits(StringToExtended(u"-INF"), 0x8000000000000000ull, 0xFFFF);
  EXPECT_EQ(General(StringToExtended(u"NAN")), u"NAN");
  EXPECT_EQ(ExtendedToString(-INFINITY, true, 2), u"-INF");
  EXPECT_EQ(General(INFINITY), u"INF");
}

TEST(ValueText, ParsingAcceptsOnlyDecimalNumbers) {
  EXPECT_EQ(StringToExtended(u"-.5"), -0.5L);
  EXPECT_EQ(StringToExtended(u"1.5E10"), 1.5e10L);
  EXPECT_EQ(StringToExtended(u"2e-3"), 2e-3L);
  EXPECT_EQ(StringToExtended(u"0.1"), 0.1L);  // correctly rounded to 64 bits
  for (const char16_t* Bad : {u"1,5", u"nan", u"inf", u"Infinity", u"", u" 1", u"1 ", u"1e",
                              u"0x10", u".", u"1.5.2", u"\u0661"}) {
    try {
      StringToExtended(Bad);
      ADD_FAILURE() << "accepted " << ToUTF8(Bad);
    } catch (const EConvertError& E) {
      EXPECT_EQ(E.Message(), u"'" + String(Bad) + u"' is not a valid floating point value");
    }
  }
}

TEST(ValueText, GeneralFormChoosesPlainOrScientific) {
  EXPECT_EQ(General(0.1L), u"0.1");
  EXPECT_EQ(General(0), u"0");
  EXPECT_EQ(General(-0.0L), u"0");
  EXPECT_EQ(General(1000), u"1000");
  EXPECT_EQ(General(0.00001L), u"0.00001");
  EXPECT_EQ(General(0.000001L), u"1E-6");
  EXPECT_EQ(General(1e20L), u"1E20");
  EXPECT_EQ(General(1.5e-7L), u"1.5E-7");
  EXPECT_EQ(General(123456789012345678.0L), u"1.23456789012346E17");
  EXPECT_EQ(General(123456789012345678.0L, true), u"123456789012345678");
  EXPECT_EQ(General(-2.5L), u"-2.5");
  EXPECT_EQ(General(1.0L / 3, true), u"0.333333333333333333");
  EXPECT_EQ(General(999999999999999.9L), u"1E15");  // rounding carries into a new digit
}

TEST(ValueText, FixedFormRoundsHalfAwayFromZero) {
  EXPECT_EQ(ExtendedToString(2, false, 3), u"2.000");
  EXPECT_EQ(ExtendedToString(0.125L, false, 2), u"0.13");  // exact tie
  EXPECT_EQ(ExtendedToString(-0.125L, false, 2), u"-0.13");
  EXPECT_EQ(ExtendedToString(-0.001L, false, 2), u"0.00");
  EXPECT_EQ(ExtendedToString(1.005L, false, 2), u"1.00");  // 1.005 lies below the tie in binary
  EXPECT_EQ(ExtendedToString(9.999L, false, 2), u"10.00");
  EXPECT_EQ(ExtendedToString(1.5L, false, 25), u"1.500000000000000000");  // clamped to 18
  EXPECT_EQ(ExtendedToString(1e20L, false, 2), u"1E20");  // more integer digits than precision
}

TEST(ValueText, IgnoresACommaLocale) {
  CommaLocale Locale;
  if (!Locale.Active()) GTEST_SKIP() << "no locale with a decimal comma is installed";
  EXPECT_EQ(StringToExtended(u"1.5"), 1.5L);
  EXPECT_THROW(StringToExtended(u"1,5"), EConvertError);
  EXPECT_EQ(ExtendedToString(1.25L, false, 2), u"1.25");
  EXPECT_EQ(General(0.5L), u"0.5");
}
