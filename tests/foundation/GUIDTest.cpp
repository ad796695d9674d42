#include "gello/foundation/GUID.h"

#include <gtest/gtest.h>

#include <unordered_set>

#include "gello/foundation/Exceptions.h"

using namespace gello;

TEST(GUID, TextFormRoundTripsMatchesTheLiteralAndMustBeBraced) {
  constexpr GUID Literal = GUIDLiteral("{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9}");
  static_assert(Literal.D1 == 0x0A1B2C3D && Literal.D2 == 0x4E5F && Literal.D3 == 0x6071);
  EXPECT_EQ(Literal.ToString(), u"{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9}");
  EXPECT_EQ(GUID::Parse(u"{0a1b2c3d-4e5f-6071-8293-a4b5c6d7e8f9}"), Literal);
  for (const char16_t* Bad :
       {u"", u"0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9", u"{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8FZ}",
        u"{0A1B2C3D-4E5F-6071-8293-A4B5C6D7E8F9"}) {
    try {
      GUID::Parse(Bad);
      ADD_FAILURE() << "accepted " << ToUTF8(Bad);
    } catch (const EConvertError& E) {
      EXPECT_EQ(E.Message(), u"'" + String(Bad) + u"' is not a valid GUID value");
    }
  }
}

TEST(GUID, CreatedGUIDsAreDistinctVersion4AndNeverNull) {
  std::unordered_set<GUID, GUIDHash> Seen;
  for (int i = 0; i < 1000; ++i) {
    const GUID G = GUID::Create();
    EXPECT_FALSE(IsNullGUID(G));
    EXPECT_EQ(G.D3 >> 12, 4);
    EXPECT_TRUE(Seen.insert(G).second);
  }
  EXPECT_EQ(nullGUID.ToString(), u"{00000000-0000-0000-0000-000000000000}");
}
