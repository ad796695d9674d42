#include <gtest/gtest.h>

#include "ExpectMessage.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/String.h"
#include "gello/ocl/StringMaker.h"

using namespace gello;

namespace {

// Stands in for the String value class: it only carries its text.
class TTextOnly : public TOCLAny, public virtual IOCLString {
 public:
  explicit TTextOnly(String Text) : FText(std::move(Text)) {}
  using TOCLAny::_EQ_;
  using TOCLAny::_NE_;
  String GetasString() const override { return FText; }
  Ref<IOCLString> concat(IOCLString*) const override { return Unused(); }
  Ref<IOCLString> lpad(IOCLInteger*, IOCLString*) const override { return Unused(); }
  Ref<IOCLString> ltrim(IOCLString*) const override { return Unused(); }
  Ref<IOCLString> replace(IOCLString*, IOCLString*) const override { return Unused(); }
  Ref<IOCLString> rpad(IOCLInteger*, IOCLString*) const override { return Unused(); }
  Ref<IOCLString> rtrim(IOCLString*) const override { return Unused(); }
  Ref<IOCLInteger> size() const override { return Unused(); }
  Ref<IOCLString> substring(IOCLInteger*, IOCLInteger*) const override { return Unused(); }
  Ref<IOCLInteger> toInteger() const override { return Unused(); }
  Ref<IOCLString> toLower() const override { return Unused(); }
  Ref<IOCLReal> toReal() const override { return Unused(); }
  Ref<IOCLString> toUpper() const override { return Unused(); }
  Ref<IOCLBoolean> _EQ_(IOCLString*) const override { return Unused(); }
  Ref<IOCLBoolean> _NE_(IOCLString*) const override { return Unused(); }

 private:
  static std::nullptr_t Unused() { throw EOCLException(u"not part of this stand-in"); }
  String FText;
};

Ref<IOCLString> MakeTextOnly(const String& Text) {
  return MakeRef<TTextOnly>(Text);
}

// The library's own maker, put back after each replacement.
Ref<IOCLString> MakeLibraryString(const String& Text) {
  return MakeRef<TOCLString>(Text);
}

struct StringResultTest : testing::Test {
  void SetUp() override { SetOCLStringMaker(MakeTextOnly); }
  void TearDown() override { SetOCLStringMaker(MakeLibraryString); }
};

}  // namespace

TEST_F(StringResultTest, NumbersAndBooleansGiveTheirTextAsStrings) {
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
}

TEST(StringResultWithoutClass, TheStringClassRegistersItselfAndAnEmptySlotRaises) {
  // Loading the library fills the slot with the String value class.
  EXPECT_TRUE(dynamic_cast<TOCLString*>(MakeRef<TOCLReal>(1)->toChar().get()));
  SetOCLStringMaker(nullptr);
  ExpectMessage<EOCLException>([] { MakeRef<TOCLReal>(1)->toChar(); },
                               u"Internal OCL error: no String value class registered");
  SetOCLStringMaker(MakeLibraryString);
}
