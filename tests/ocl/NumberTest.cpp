#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"

using namespace gello;

namespace {

using NumberTest = SystemClassesTest;
using Int64 = std::int64_t;
constexpr Int64 Least = std::numeric_limits<Int64>::min();
constexpr Int64 Most = std::numeric_limits<Int64>::max();

Ref<TOCLReal> R(Extended Value) {
  return MakeRef<TOCLReal>(Value);
}
Ref<TOCLInteger> I(Int64 Value) {
  return MakeRef<TOCLInteger>(Value);
}
Int64 AsInt(const Ref<IOCLInteger>& Value) {
  return Value->GetasInt64();
}
bool IsTrue(const Ref<IOCLBoolean>& B) {
  return B.get() == TOCLBoolean::BooleanValue(true).get();
}
IOCLInteger* AsInteger(const Ref<TOCLInteger>& Value) {
  return Value.get();
}

}  // namespace

TEST_F(NumberTest, RoundingFloorAndCeiling) {
  EXPECT_EQ(AsInt(R(2.5L)->round()), 2);
  EXPECT_EQ(AsInt(R(3.5L)->round()), 4);
  EXPECT_EQ(AsInt(R(-2.5L)->round()), -2);
  EXPECT_EQ(AsInt(R(-1.5L)->round()), -2);
  EXPECT_EQ(AsInt(R(-1.5L)->floor()), -2);
  EXPECT_EQ(AsInt(R(-1.5L)->ceiling()), -1);
  // Floor and ceiling work in 32 bits: out of range (and NaN) is the 32-bit integer indefinite.
  EXPECT_EQ(AsInt(R(2147483647.5L)->floor()), 2147483647);
  EXPECT_EQ(AsInt(R(3e9L)->floor()), -2147483648LL);
  EXPECT_EQ(AsInt(R(NAN)->ceiling()), -2147483648LL);
  // An Integer holding a float reads back rounded, ties to even.
  EXPECT_EQ(MakeRef<TOCLInteger>(TFromFloat{}, 2.5L)->GetasInt64(), 2);
}

TEST_F(NumberTest, IntegerArithmeticWrapsAndTruncates) {
  EXPECT_EQ(AsInt(I(-7)->_MOD_(AsInteger(I(2)))), -1);
  EXPECT_EQ(AsInt(I(7)->_MOD_(AsInteger(I(-2)))), 1);
  EXPECT_EQ(AsInt(I(Most)->_ADD_(AsInteger(I(1)))), Least);
  EXPECT_EQ(AsInt(I(Least)->_SUBTRACT_(AsInteger(I(1)))), Most);
  EXPECT_EQ(AsInt(I(Most)->_MULTIPLY_(AsInteger(I(2)))), -2);
  EXPECT_EQ(AsInt(I(Least)->_DIV_(AsInteger(I(-1)))), Least);
  EXPECT_EQ(AsInt(I(Least)->_MOD_(AsInteger(I(-1)))), 0);
  EXPECT_EQ(DynCast<IOCLInteger>(I(Least)->_NEGATE_())->GetasInt64(), Least);
  EXPECT_THROW(I(1)->_DIV_(AsInteger(I(0))), EDivByZero);
  EXPECT_THROW(I(1)->_MOD_(AsInteger(I(0))), EDivByZero);
  // Integer with Real runs the Real code and gives a Real.
  Ref<IOCLReal> Mixed = I(1)->_ADD_(static_cast<IOCLReal*>(R(0.5L).get()));
  EXPECT_EQ(Mixed->GetasExtended(), 1.5L);
  EXPECT_FALSE(DynCast<IOCLInteger>(Mixed));
  EXPECT_EQ(I(7)->_DIVIDE_(I(2).get())->GetasExtended(), 3.5L);
}

TEST_F(NumberTest, RealArithmeticIsIEEEOnExtended) {
  EXPECT_EQ(R(0.1L)->_ADD_(R(0.2L).get())->GetasExtended(), 0.1L + 0.2L);
  EXPECT_EQ(R(2)->power(R(10).get())->GetasExtended(), 1024.0L);
  EXPECT_TRUE(std::isinf(R(1)->_DIVIDE_(R(0).get())->GetasExtended()));
  EXPECT_TRUE(std::isinf(R(0)->inverted()->GetasExtended()));
  EXPECT_TRUE(std::isnan(R(-8)->power(R(0.5L).get())->GetasExtended()));
  Ref<IOCLReal> Nil = R(1)->_MULTIPLY_(static_cast<IOCLReal*>(nullptr));
  EXPECT_TRUE(Nil->GetunDefined());
  EXPECT_EQ(Nil->GetExceptionMessage(), u"nil operand of _MULTIPLY_");
}

TEST_F(NumberTest, ComparisonsAndEquality) {
  EXPECT_TRUE(IsTrue(I(1)->_EQ_(static_cast<IOCLReal*>(R(1.0L).get()))));
  EXPECT_TRUE(I(1)->isEqual(R(1.0L).get()));
  EXPECT_TRUE(R(0.0L)->isEqual(R(-0.0L).get()));
  EXPECT_FALSE(R(NAN)->isEqual(R(NAN).get()));
  EXPECT_TRUE(IsTrue(R(NAN)->_NE_(R(NAN).get())));
  EXPECT_TRUE(IsTrue(R(1)->_LT_(R(2).get())));
  EXPECT_FALSE(IsTrue(R(NAN)->_GE_(R(2).get())));
  EXPECT_EQ(R(1)->_LT_(nullptr).get(), TOCLBoolean::UndefinedBoolean().get());
  EXPECT_FALSE(R(1)->isEqual(TOCLBoolean::BooleanValue(true).get()));
  EXPECT_TRUE(R(1)->_LessThan(I(2).get()));
  EXPECT_FALSE(R(1)->_LessThan(nullptr));
  ExpectMessage<EOCLException>([] { R(1)->_LessThan(TOCLBoolean::BooleanValue(true).get()); },
                               u"Data types are incompatible for sorting.");
}

TEST_F(NumberTest, MaxMinKeepTheReceiversKindAndHandleNaN) {
  EXPECT_EQ(R(1)->max(R(2).get())->GetasExtended(), 2.0L);
  // Unordered: max keeps the receiver, min takes the argument.
  EXPECT_EQ(R(1)->max(R(NAN).get())->GetasExtended(), 1.0L);
  EXPECT_TRUE(std::isnan(R(1)->min(R(NAN).get())->GetasExtended()));
  EXPECT_TRUE(std::isnan(R(NAN)->max(R(1).get())->GetasExtended()));
  EXPECT_EQ(R(NAN)->min(R(1).get())->GetasExtended(), 1.0L);
  // Integer receiver with a Real argument: an Integer holding the float as computed.
  Ref<IOCLReal> Kept = I(1)->max(static_cast<IOCLReal*>(R(2.5L).get()));
  ASSERT_TRUE(DynCast<IOCLInteger>(Kept));
  EXPECT_EQ(Kept->GetasExtended(), 2.5L);
  EXPECT_EQ(AsInt(I(3)->max(AsInteger(I(9)))), 9);
  auto Receiver = I(5);
  Ref<IOCLInteger> Same = Receiver->max(AsInteger(I(1)));
  EXPECT_NE(Same.get(), static_cast<IOCLInteger*>(Receiver.get()));
  ASSERT_TRUE(DynCast<IOCLInteger>(I(-4)->abs()));
  EXPECT_EQ(I(-4)->abs()->GetasExtended(), 4.0L);
}

TEST_F(NumberTest, TextAndJSONForms) {
  EXPECT_EQ(R(0.1L)->GetasString(), u"0.1");
  EXPECT_EQ(R(1e20L)->GetasString(), u"1E20");
  EXPECT_EQ(R(INFINITY)->GetasString(), u"INF");
  // An Integer's text is the Real's: the general format, whole or not.
  EXPECT_EQ(I(1234567890123456)->GetasString(), u"1.23456789012346E15");
  EXPECT_EQ(I(1234567890123456)->toChar()->GetasString(), u"1.23456789012346E15");
  EXPECT_EQ(MakeRef<TOCLInteger>(TFromFloat{}, 2.5L)->GetasString(), u"2.5");
  EXPECT_EQ(I(-42)->toChar()->GetasString(), u"-42");
  auto Value = R(5);
  Value->SetasString(u"");
  EXPECT_EQ(Value->GetasExtended(), 0.0L);
  Value->SetasString(u"1.5E3");
  EXPECT_EQ(Value->GetasExtended(), 1500.0L);
  EXPECT_THROW(Value->SetasString(u"abc"), EConvertError);
  auto Whole = I(5);
  Whole->SetasString(u"not a number");
  EXPECT_EQ(Whole->GetasInt64(), 0);
  Whole->SetasString(u"-9223372036854775808");
  EXPECT_EQ(Whole->GetasInt64(), Least);
  Whole->SetasString(u"99999999999999999999");
  EXPECT_EQ(Whole->GetasInt64(), 0);
  EXPECT_EQ(MakeRef<TOCLReal>(TUndefined{u"no data"})->GetasString(),
            u"null< Real: TOCLReal> no data");
  EXPECT_EQ(R(1.5L)->GetasCompactJSON().dump(), "1.5");
  EXPECT_EQ(R(-INFINITY)->GetasCompactJSON().dump(), R"("-INF")");
  EXPECT_EQ(R(1.5L)->GetasJSON().dump(), R"({"#type":"Real",".value":1.5})");
  Whole->SetasJSON(I(Least)->GetasJSON());
  EXPECT_EQ(Whole->GetasInt64(), Least);
  auto Real = R(0);
  Real->SetasCompactJSON(TJSON("NAN"));
  EXPECT_TRUE(std::isnan(Real->GetasExtended()));
}
