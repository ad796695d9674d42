#include "gello/ocl/Boolean.h"

#include <gtest/gtest.h>

#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Integer.h"

using namespace gello;

namespace {

using BooleanTest = SystemClassesTest;

constexpr TRTTIExtendedBoolean F = rtti_false, T = rtti_true, U = rtti_unknown;

Ref<IOCLBoolean> B(TRTTIExtendedBoolean V) {
  return TOCLBoolean::BooleanValue(V);
}

TRTTIExtendedBoolean V(const Ref<IOCLBoolean>& Value) {
  return Value->GetasExtendedBoolean();
}

}  // namespace

TEST_F(BooleanTest, SharedValuesAreReadOnly) {
  Ref<IOCLBoolean> Result = B(T)->_AND_(B(T).get());
  ExpectMessage<EOCLException>([&] { Result->SetasBoolean(false); },
                               u"unable to change shared boolean \"true\" value");
  ExpectMessage<EOCLException>([&] { B(F)->SetasString(u"true"); },
                               u"unable to change shared boolean \"false\" value");
  ExpectMessage<EOCLException>([&] { B(U)->SetasCompactJSON(true); },
                               u"unable to change shared boolean \"unknown\" value");
  EXPECT_THROW(TOCLBoolean::UndefinedBoolean()->SetasBoolean(true), EOCLException);
  EXPECT_EQ(V(B(T)), T);
  EXPECT_EQ(V(MakeRef<TOCLInteger>(2)->_EQ_(MakeRef<TOCLInteger>(2).get())), T);
  // A Boolean of its own still changes.
  Ref<IOCLBoolean> Own = MakeRef<TOCLBooleanValue>(true);
  Own->SetasBoolean(false);
  EXPECT_EQ(V(Own), F);
}

TEST_F(BooleanTest, OperatorsFollowTheThreeValuedTables) {
  EXPECT_EQ(V(B(U)->_AND_(B(F).get())), F);
  EXPECT_EQ(V(B(U)->_AND_(B(T).get())), U);
  EXPECT_EQ(V(B(U)->_OR_(B(T).get())), T);
  EXPECT_EQ(V(B(U)->_OR_(B(F).get())), U);
  EXPECT_EQ(V(B(U)->_XOR_(B(T).get())), U);
  EXPECT_EQ(V(B(T)->_XOR_(B(F).get())), T);
  EXPECT_EQ(V(B(T)->_XOR_(B(T).get())), F);
  EXPECT_EQ(V(B(U)->_NOT_()), U);
  EXPECT_EQ(V(B(F)->implies(B(U).get())), T);
  EXPECT_EQ(V(B(T)->implies(B(F).get())), F);
  EXPECT_EQ(V(B(T)->implies(B(U).get())), U);
  // Equality is never unknown: unknown = unknown holds.
  EXPECT_EQ(V(B(U)->_EQ_(B(U).get())), T);
  EXPECT_EQ(V(B(U)->_NE_(B(U).get())), F);
  EXPECT_EQ(V(B(U)->_EQ_(B(T).get())), F);
}

TEST_F(BooleanTest, ResultsAreTheSharedObjects) {
  for (auto Left : {F, T, U})
    for (auto Right : {F, T, U}) {
      Ref<IOCLBoolean> Result = B(Left)->_AND_(B(Right).get());
      EXPECT_EQ(Result.get(), B(Result->GetasExtendedBoolean()).get());
    }
  // A Boolean made on its own combines the same way and still yields a shared object.
  auto Own = MakeRef<TOCLBooleanValue>(true);
  EXPECT_EQ(Own->_OR_(B(F).get()).get(), B(T).get());
  EXPECT_EQ(TOCLBoolean::BooleanValue(static_cast<TRTTIExtendedBoolean>(7)), nullptr);
}

TEST_F(BooleanTest, NilRightOperandGivesTheUndefinedBoolean) {
  IOCLBoolean* Nil = nullptr;
  Ref<IOCLBoolean> Undefined = TOCLBoolean::UndefinedBoolean();
  EXPECT_TRUE(Undefined->GetunDefined());
  for (auto Value : {F, T, U}) {
    EXPECT_EQ(B(Value)->_AND_(Nil).get(), Undefined.get());
    EXPECT_EQ(B(Value)->_OR_(Nil).get(), Undefined.get());
    EXPECT_EQ(B(Value)->_XOR_(Nil).get(), Undefined.get());
    EXPECT_EQ(B(Value)->implies(Nil).get(), Undefined.get());
    EXPECT_EQ(B(Value)->_EQ_(Nil).get(), Undefined.get());
    EXPECT_EQ(B(Value)->_NE_(Nil).get(), Undefined.get());
  }
  // The Any-level comparison with nil is an ordinary false.
  EXPECT_EQ(B(T)->_EQ_(static_cast<IOCLAny*>(nullptr)).get(), B(F).get());
}

TEST_F(BooleanTest, AccessorsTextEqualityAndJSON) {
  auto Value = MakeRef<TOCLBooleanValue>(rtti_unknown);
  ExpectMessage<EOCLException>([&] { Value->GetasBoolean(); },
                               u"unable to convert extended boolean \"unknown\" value");
  EXPECT_EQ(Value->GetasString(), u"unknown");
  Value->SetasString(u"TRUE");
  EXPECT_TRUE(Value->GetasBoolean());
  EXPECT_THROW(Value->SetasString(u"maybe"), EConvertError);
  Value->SetasBoolean(false);
  EXPECT_TRUE(B(F)->isEqual(Value.get()));
  EXPECT_FALSE(B(F)->isEqual(MakeRef<TOCLInteger>(0).get()));
  EXPECT_EQ(TOCLBoolean::UndefinedBoolean()->GetasString(), u"null< Boolean: TOCLBooleanValue> ");
  EXPECT_EQ(B(T)->GetasCompactJSON().dump(), "true");
  EXPECT_EQ(B(U)->GetasCompactJSON().dump(), R"({"#type":"Boolean","#value":"unknown"})");
  EXPECT_EQ(B(U)->GetasJSON().dump(), R"({"#type":"Boolean",".value":"unknown"})");
  for (auto Expected : {U, T, F, U}) {
    Value->SetasCompactJSON(B(Expected)->GetasCompactJSON());
    EXPECT_EQ(Value->GetasExtendedBoolean(), Expected);
    Value->SetasJSON(B(Expected == T ? F : T)->GetasJSON());
    Value->SetasJSON(B(Expected)->GetasJSON());
    EXPECT_EQ(Value->GetasExtendedBoolean(), Expected);
  }
  Value->SetasCompactJSON(TJSON(3));
  EXPECT_EQ(Value->GetasExtendedBoolean(), U);
}
