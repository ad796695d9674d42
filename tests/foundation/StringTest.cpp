#include "gello/foundation/String.h"

#include <gtest/gtest.h>

#include "gello/foundation/Exceptions.h"

using namespace gello;

TEST(String, UTF8RoundTripsSurrogatePairs) {
  const std::string Text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z";  // a é € 😀 z
  const String Wide = FromUTF8(Text);
  ASSERT_EQ(Wide.size(), 6u);  // the emoji takes two code units
  EXPECT_EQ(Wide[1], 0x00E9);
  EXPECT_EQ(Wide[2], 0x20AC);
  EXPECT_EQ(Wide[3], 0xD83D);
  EXPECT_EQ(Wide[4], 0xDE00);
  EXPECT_EQ(ToUTF8(Wide), Text);
}

TEST(String, MalformedUTF8AndLoneSurrogatesAreReplacedOrRejected) {
  const std::string Cases[] = {
      "\xC3",              // truncated
      "\xC0\xAF",          // overlong '/'
      "\xED\xA0\x80",      // encoded surrogate
      "\xF4\x90\x80\x80",  // above U+10FFFF
      "\xFF",              // never a lead byte
  };
  for (const std::string& Bad : Cases) {
    const String Replaced = FromUTF8("x" + Bad + "y");
    EXPECT_EQ(Replaced.front(), u'x');
    EXPECT_EQ(Replaced.back(), u'y');
    EXPECT_NE(Replaced.find(u'\xFFFD'), String::npos) << Bad;
    EXPECT_THROW(FromUTF8(Bad, TMalformed::Reject), EConvertError);
  }
  const String Lone = {u'a', char16_t(0xD800), u'b', char16_t(0xDC00)};
  EXPECT_EQ(ToUTF8(Lone),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  EXPECT_THROW(ToUTF8(Lone, TMalformed::Reject), EConvertError);
}

TEST(String, Latin1WidensEachByteAndNarrowsWithQuestionMark) {
  EXPECT_EQ(FromLatin1("\xC3\xA9"), (String{0xC3, 0xA9}));
  EXPECT_EQ(ToLatin1(u"\u00E9\u20AC"), "\xE9?");
  EXPECT_EQ(IntToStr(-9223372036854775807LL - 1), u"-9223372036854775808");
}
