#include <gtest/gtest.h>

#include "ExpectMessage.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/String.h"
#include "gello/ocl/StringMaker.h"

using namespace gello;

namespace {

Ref<IOCLString> MakeLibraryString(const String& Text) {
  return MakeRef<TOCLString>(Text);
}

}  // namespace

TEST(StringResultTest, NumbersAndBooleansGiveTheirTextThroughTheRegisteredStringClass) {
  // Loading the library fills the slot with the String value class.
  EXPECT_TRUE(dynamic_cast<TOCLString*>(MakeRef<TOCLReal>(1)->toChar().get()));
  auto Third = MakeRef<TOCLReal>(1.0L / 3.0L);
  EXPECT_EQ(Third->toChar()->GetasString(), u"0.333333333333333");
  EXPECT_EQ(Third->toCharFormat(MakeRef<TOCLInteger>(2).get())->GetasString(), u"0.33");
  // The count is taken from its low 32 bits: 2^32 + 3 counts as 3.
  EXPECT_EQ(Third->toCharFormat(MakeRef<TOCLInteger>((1LL << 32) + 3).get())->GetasString(),
            u"0.333");
  EXPECT_EQ(MakeRef<TOCLReal>(2)->toCharFormat(MakeRef<TOCLInteger>(3).get())->GetasString(),
            u"2.000");
  EXPECT_EQ(Third->toCharFormat(nullptr)->GetasString(), Third->toChar()->GetasString());
  EXPECT_EQ(MakeRef<TOCLInteger>(-12)->toChar()->GetasString(), u"-12");
  EXPECT_EQ(TOCLBoolean::BooleanValue(rtti_unknown)->asOCLString()->GetasString(), u"unknown");
  SetOCLStringMaker(nullptr);
  ExpectMessage<EOCLException>([] { MakeRef<TOCLReal>(1)->toChar(); },
                               u"Internal OCL error: no String value class registered");
  SetOCLStringMaker(MakeLibraryString);
}
