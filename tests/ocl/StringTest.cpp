#include <gtest/gtest.h>

#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/model/Property.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/String.h"
#include "gello/ocl/StringDescendant.h"

using namespace gello;

namespace {

Ref<TOCLString> Str(const String& Text) {
  return MakeRef<TOCLString>(Text);
}

Ref<TOCLInteger> Int(std::int64_t Value) {
  return MakeRef<TOCLInteger>(Value);
}

String Sub(const String& Text, std::int64_t Lower, std::int64_t Upper) {
  return Str(Text)->substring(Int(Lower).get(), Int(Upper).get())->GetasString();
}

using StringTest = SystemClassesTest;

}  // namespace

TEST(StringOps, SizeConcatSubstringAndCase) {
  EXPECT_EQ(Str(u"abc")->size()->GetasInt64(), 3);
  // Positions count UTF-16 code units: a character outside the BMP counts twice.
  EXPECT_EQ(Str(u"a\U0001F600")->size()->GetasInt64(), 3);
  EXPECT_EQ(Str(u"ab")->concat(Str(u"cd").get())->GetasString(), u"abcd");
  EXPECT_EQ(Sub(u"hello", 2, 4), u"ell");
  EXPECT_EQ(Sub(u"hello", 4, 2), u"");
  EXPECT_EQ(Sub(u"hello", 3, 99), u"llo");
  // A lower bound below 1 starts at 1 but keeps its count: -1..2 counts 4 units.
  EXPECT_EQ(Sub(u"hello", -1, 2), u"hell");
  EXPECT_EQ(Str(u"Straße")->toUpper()->GetasString(), u"STRAßE");
  EXPECT_EQ(Str(u"aZ@[`{")->toUpper()->GetasString(), u"AZ@[`{");
}

TEST(StringOps, PaddingTrimmingAndReplacing) {
  auto Pad = [](const String& Text, std::int64_t Count, const String& With, bool Left) {
    auto S = Str(Text);
    auto N = Int(Count);
    auto P = Str(With);
    return (Left ? S->lpad(N.get(), P.get()) : S->rpad(N.get(), P.get()))->GetasString();
  };
  EXPECT_EQ(Pad(u"abc", 2, u"*", true), u"**abc");
  EXPECT_EQ(Pad(u"abc", 2, u"xy", false), u"abcxyxy");
  EXPECT_EQ(Pad(u"abc", -4, u"*", true), u"abc");
  // Only the low 32 bits count: 2^32 + 1 pads once.
  EXPECT_EQ(Pad(u"a", (1LL << 32) + 1, u"-", false), u"a-");

  auto Trim = [](const String& Text, const String& What, bool Left) {
    auto S = Str(Text);
    auto W = Str(What);
    return (Left ? S->ltrim(W.get()) : S->rtrim(W.get()))->GetasString();
  };
  EXPECT_EQ(Trim(u"a", u"", true), u"a");
  EXPECT_EQ(Trim(u"xyxyab", u"xy", true), u"ab");
  EXPECT_EQ(Trim(u"yxab", u"xy", true), u"yxab");
  EXPECT_EQ(Trim(u"abxyx", u"xy", false), u"abxyx");
  EXPECT_EQ(Trim(u"xyxy", u"xy", false), u"");

  auto Replace = [](const String& Text, const String& Find, const String& With) {
    return Str(Text)->replace(Str(Find).get(), Str(With).get())->GetasString();
  };
  EXPECT_EQ(Replace(u"aab", u"ab", u"b"), u"b");
  EXPECT_EQ(Replace(u"abc", u"", u"x"), u"abc");
}

TEST(StringOps, NumbersFromTextEqualityOrderAndNilOperands) {
  EXPECT_EQ(Str(u"-42")->toInteger()->GetasInt64(), -42);
  EXPECT_EQ(Str(u"+2147483647")->toInteger()->GetasInt64(), 2147483647);
  for (const char16_t* Bad : {u"", u" 1", u"1 ", u"2147483648", u"0x10", u"1.5", u"--1"})
    ExpectMessage<EConvertError>([&] { Str(Bad)->toInteger(); },
                                 u"'" + String(Bad) + u"' is not a valid integer value");
  EXPECT_THROW(Str(u"two")->toReal(), EConvertError);
  auto A = Str(u"a");
  auto B = Str(u"B");
  EXPECT_TRUE(A->_EQ_(Str(u"a").get())->GetasBoolean());
  EXPECT_FALSE(A->_EQ_(Str(u"A").get())->GetasBoolean());
  EXPECT_FALSE(A->isEqual(Int(1).get()));
  EXPECT_FALSE(A->isEqual(nullptr));
  EXPECT_TRUE(B->_LessThan(A.get()));  // ordinal: every upper-case ASCII letter first
  EXPECT_FALSE(A->_LessThan(nullptr));
  ExpectMessage<EOCLException>([&] { A->_LessThan(Int(1).get()); },
                               u"Data types are incompatible for sorting.");
  Ref<IOCLString> Lost = A->concat(nullptr);
  EXPECT_FALSE(Lost->oclIsDefined()->GetasBoolean());
  EXPECT_EQ(Lost->GetExceptionMessage(), u"nil operand of concat");
  EXPECT_EQ(A->_EQ_(static_cast<IOCLString*>(nullptr)), TOCLBoolean::UndefinedBoolean());
}

TEST(StringOps, TokensAndJSON) {
  auto S = Str(u"it's");
  EXPECT_EQ(S->GetasToken(), u"'it''s'");
  auto Back = Str(u"");
  Back->SetasToken(S->GetasToken());
  EXPECT_EQ(Back->GetasString(), u"it's");
  EXPECT_EQ(S->GetasCompactJSON().dump(), R"("it's")");
  Back->SetasCompactJSON(TJSON("ü"));
  EXPECT_EQ(Back->GetasString(), u"ü");
  Back->SetasJSON(TJSON::parse(R"({"#type":"String",".value":"x"})"));
  EXPECT_EQ(Back->GetasString(), u"x");
  Back->SetasCompactJSON(TJSON(3));  // not a string: unchanged
  EXPECT_EQ(Back->GetasString(), u"x");
}

TEST_F(StringTest, NullStringAndDescendant) {
  auto Null = MakeRef<TOCLNullString>(u"kept");
  EXPECT_FALSE(Null->oclIsDefined()->GetasBoolean());
  EXPECT_EQ(Null->GetasString(), u"kept");
  EXPECT_EQ(Null->toUpper()->GetasString(), u"KEPT");

  auto Code = MakeRef<TRTTIClass>(u"Code", Globals->Get_String());
  Code->SetClassKind(rtti_string);
  Code->AddMember(MakeRef<TRTTIProperty>(u"system", Globals->Get_String()));
  Ref<IOCLAny> Value = TOCLAny::CreateFromClass(Code);
  auto* Descendant = dynamic_cast<TOCLStringDescendant*>(Value.get());
  ASSERT_TRUE(Descendant);
  EXPECT_EQ(Value->GetInstanceType(), Ref<IRTTIClass>(Code));
  Value->SetasString(u"123");
  Value->SetPropertyByName(u"system", Str(u"LOINC"));
  EXPECT_EQ(Value->GetasString(), u"123");
  EXPECT_EQ(Value->GetPropertyByName(u"system")->GetasString(), u"LOINC");
  EXPECT_TRUE(Descendant->isEqual(Str(u"123").get()));
  // The built-in String, or a subclass without properties, makes a plain String.
  Ref<IOCLAny> Plain = TOCLAny::CreateFromClass(Globals->Get_String());
  const IOCLAny& PlainValue = *Plain;
  EXPECT_EQ(typeid(PlainValue), typeid(TOCLString));
}
