#include "gello/foundation/Logic.h"

#include <gtest/gtest.h>

#include "gello/foundation/Exceptions.h"

using namespace gello;

namespace {
constexpr auto F = rtti_false, T = rtti_true, U = rtti_unknown;
}

TEST(Logic, TruthTablesCombineThreeValues) {
  // The OCL Boolean tests read most entries through the operators.
  EXPECT_EQ(truth_table_implies[U * 3 + T], T);
  EXPECT_EQ(truth_table_not[F], T);
  // Every table but implies is symmetric.
  for (int L = 0; L < 3; ++L)
    for (int R = 0; R < 3; ++R) {
      EXPECT_EQ(truth_table_or[L * 3 + R], truth_table_or[R * 3 + L]);
      EXPECT_EQ(truth_table_and[L * 3 + R], truth_table_and[R * 3 + L]);
      EXPECT_EQ(truth_table_xor[L * 3 + R], truth_table_xor[R * 3 + L]);
    }
}

TEST(Logic, TablesLieInOrderFollowedByTheNullGUID) {
  const auto* Base = reinterpret_cast<const unsigned char*>(&TruthTables);
  EXPECT_EQ(reinterpret_cast<const unsigned char*>(truth_table_or), Base);
  EXPECT_EQ(reinterpret_cast<const unsigned char*>(truth_table_and), Base + 9);
  EXPECT_EQ(reinterpret_cast<const unsigned char*>(truth_table_xor), Base + 18);
  EXPECT_EQ(reinterpret_cast<const unsigned char*>(truth_table_implies), Base + 27);
  EXPECT_EQ(reinterpret_cast<const unsigned char*>(truth_table_not), Base + 36);
  EXPECT_EQ(reinterpret_cast<const unsigned char*>(&nullGUID), Base + offsetof(TTruthTables, Null));
  EXPECT_GT(offsetof(TTruthTables, Null), 38u);
  EXPECT_TRUE(IsNullGUID(nullGUID));
}

TEST(Logic, BooleanTextConvertsBothWays) {
  EXPECT_EQ(ExtendedBooleanToString(U), u"unknown");
  EXPECT_EQ(StringToExtendedBoolean(u""), U);
  EXPECT_EQ(StringToExtendedBoolean(u"0"), F);
  EXPECT_EQ(StringToExtendedBoolean(u"1"), T);
  EXPECT_EQ(StringToExtendedBoolean(u"TRUE"), T);
  for (const char16_t* Bad : {u"Yes", u" true", u"2"}) {
    try {
      StringToExtendedBoolean(Bad);
      ADD_FAILURE() << "accepted " << ToUTF8(Bad);
    } catch (const EConvertError& E) {
      String Lower(Bad);
      for (auto& C : Lower)
        C = (C >= u'A' && C <= u'Z') ? C + 32 : C;
      EXPECT_EQ(E.Message(), u"bad StringToExtendedBoolean conversion: " + Lower);
    }
  }
}
