#include "gello/expr/Literals.h"

#include <gtest/gtest.h>

#include "gello/expr/DebugInfo.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/model/ElementRegistry.h"
#include "gello/model/Generic.h"
#include "gello/model/Scope.h"

using namespace gello;

namespace {
struct LiteralsTest : testing::Test {
  Ref<IRTTIClass> Type = MakeRef<TRTTIClass>(u"Type");
  void TearDown() override { Type->Clear(); }
};
}  // namespace

TEST_F(LiteralsTest, IntegerReadsBackOnly32Bits) {
  auto Big = MakeRef<TRTTIIntegerLiteral>(Type, std::int64_t{4294967296});
  EXPECT_EQ(Big->GetasString(), u"4294967296");
  try {
    Big->SetasString(u"4294967296");
    ADD_FAILURE() << "a 64-bit text must not be read";
  } catch (const EConvertError& Error) {
    EXPECT_EQ(Error.Message(), u"'4294967296' is not a valid integer value");
  }
  EXPECT_EQ(Big->GetValue(), 4294967296);  // kept after the failed read
  Big->SetasString(u"-2147483648");
  EXPECT_EQ(Big->GetValue(), -2147483648LL);
  Big->SetasString(u"2147483647");
  EXPECT_EQ(Big->GetasString(), u"2147483647");
  for (const char16_t* Bad : {u"2147483648", u"-2147483649", u"", u"-", u"12a", u"1.5", u" 1"})
    EXPECT_THROW(Big->SetasString(Bad), EConvertError) << ToUTF8(Bad);
  EXPECT_EQ(Big->GetValue(), 2147483647);
}

TEST_F(LiteralsTest, RealAndBooleanUseTheEngineTextForms) {
  auto R = MakeRef<TRTTIRealLiteral>(Type, 0.25);
  EXPECT_EQ(R->GetasString(), u"0.25");
  R->SetasString(u"0.001");  // stored as a 64-bit float, written with 18 digits
  EXPECT_EQ(R->GetValue(), 0.001);
  EXPECT_EQ(R->GetasString(), u"0.00100000000000000002");
  R->SetasString(u"1E20");
  EXPECT_EQ(R->GetValue(), 1e20);
  EXPECT_EQ(R->GetasString(), u"1E20");
  EXPECT_THROW(R->SetasString(u"abc"), EConvertError);
  EXPECT_EQ(R->GetValue(), 1e20);

  auto B = MakeRef<TRTTIBooleanLiteral>(Type, true);
  EXPECT_EQ(B->GetasString(), u"true");
  EXPECT_EQ(MakeRef<TRTTIBooleanLiteral>(Type, false)->GetasString(), u"false");
  B->SetasString(u"UNKNOWN");
  EXPECT_EQ(B->GetValue(), rtti_unknown);
  EXPECT_EQ(B->GetasString(), u"unknown");
  EXPECT_THROW(B->SetasString(u"Yes"), EConvertError);
}

TEST_F(LiteralsTest, TextLiteralsNullAndEnum) {
  auto S = MakeRef<TRTTIStringLiteral>(Type, u" keep  spaces ");
  EXPECT_EQ(S->GetasString(), u" keep  spaces ");
  auto N = MakeRef<TRTTINullLiteral>(Type);
  N->SetasString(u"something");
  EXPECT_EQ(N->GetasString(), u"null");
  EXPECT_EQ(MakeRef<TRTTIClassLiteral>(Type, u"Patient")->GetasString(), u"Patient");
  auto E = MakeRef<TRTTIEnumLiteral>(u"red", Type, 2);
  EXPECT_EQ(E->GetasString(), u"red");
  EXPECT_EQ(E->GetOrdinal(), 2);
  EXPECT_THROW(E->SetasString(u"blue"), EAssertionFailed);  // names are write-once
  auto Unnamed = MakeRef<TRTTIEnumLiteral>(u"");
  Unnamed->SetasString(u"green");
  EXPECT_EQ(Unnamed->GetName(), u"green");
}

TEST_F(LiteralsTest, ValueResolvesItsTypeAndClearDropsIt) {
  auto Scope = MakeRef<TRTTIScope>(u"pkg", true);
  auto Real = MakeRef<TRTTIClass>(u"Real");
  Scope->AddMember(Real);
  auto V = MakeRef<TRTTIValue>(BuildClassRef(u"Real"));
  V->Resolve(Scope.get());
  EXPECT_EQ(V->GetValueType(), Ref<IRTTIClass>(Real));
  EXPECT_TRUE(V->GetResolved());
  V->Clear();
  EXPECT_FALSE(V->GetValueType());
  Scope->Clear();
}

TEST_F(LiteralsTest, ReadersCreateEveryKind) {
  for (const char16_t* Kind :
       {u"Value", u"StringLiteral", u"IntegerLiteral", u"RealLiteral", u"BooleanLiteral",
        u"NullLiteral", u"ClassLiteral", u"EnumLiteral", u"Generic"}) {
    Ref<IRTTIElement> E = CreateForReader(Kind, u"n");
    ASSERT_TRUE(E) << ToUTF8(Kind);
    EXPECT_EQ(E->GetKind(), Kind);
    EXPECT_EQ(E->GetName(), u"n");
  }
  EXPECT_TRUE(DynCast<IRTTILiteral>(CreateForReader(u"IntegerLiteral", u"")));
  EXPECT_FALSE(DynCast<IRTTILiteral>(CreateForReader(u"Value", u"")));
}

TEST(Generic, IsGenericAndDebugInfoKeepsPositions) {
  auto T = MakeRef<TRTTIGeneric>(u"T");
  EXPECT_TRUE(T->IsGeneric());
  EXPECT_FALSE(MakeRef<TRTTIClass>(u"C")->IsGeneric());
  T->SetDebugInfo(MakeRef<TRTTIDebugInfo>(u"rules.gello", 12));
  EXPECT_EQ(T->GetDebugInfo()->GetSourceFile(), u"rules.gello");
  EXPECT_EQ(T->GetDebugInfo()->GetLineNumber(), 12);
  T->Clear();
  EXPECT_FALSE(T->GetDebugInfo());
}
