#include "gello/ocl/Any.h"

#include <gtest/gtest.h>

#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Null.h"
#include "gello/ocl/Type.h"

using namespace gello;

namespace {

class TPatient : public TOCLAny {
 public:
  explicit TPatient(Ref<IRTTIClass> Class) : FClass(std::move(Class)) {}
  Ref<IRTTIClass> GetInstanceType() const override { return FClass; }

 private:
  Ref<IRTTIClass> FClass;
};

bool IsTrue(const Ref<IOCLBoolean>& B) {
  return B.get() == TOCLBoolean::BooleanValue(true).get();
}
bool IsFalse(const Ref<IOCLBoolean>& B) {
  return B.get() == TOCLBoolean::BooleanValue(false).get();
}

using AnyTest = SystemClassesTest;

}  // namespace

TEST_F(AnyTest, EqualityIsIdentityAndNilIsNeverEqual) {
  auto A = MakeRef<TOCLAny>();
  auto B = MakeRef<TOCLAny>();
  EXPECT_TRUE(IsTrue(A->_EQ_(A.get())));
  EXPECT_TRUE(IsFalse(A->_EQ_(B.get())));
  EXPECT_TRUE(IsFalse(A->_EQ_(nullptr)));
  // Seen through another interface it is still the same object.
  Ref<IRTTIClassInstance> AsInstance = A;
  EXPECT_EQ(AsInstance->GetasObject(), A->GetasObject());
  EXPECT_TRUE(A->isEqual(DynCast<IOCLAny>(AsInstance).get()));
}

TEST_F(AnyTest, UndefinedValuesCarryTheirReasonsHeadFirst) {
  auto Defined = MakeRef<TOCLAny>();
  EXPECT_FALSE(Defined->GetunDefined());
  EXPECT_EQ(Defined->GetasString(), u"<Any: TOCLAny>");

  auto Undefined = MakeRef<TOCLAny>(TUndefined{u"first"});
  Undefined->AddException(u"second");
  EXPECT_TRUE(Undefined->GetunDefined());
  EXPECT_TRUE(IsFalse(Undefined->oclIsDefined()));
  EXPECT_EQ(Undefined->GetExceptionMessage(), u"second | first");
  EXPECT_EQ(Undefined->GetasString(), u"null< Any: TOCLAny> second | first");
  EXPECT_EQ(Undefined->GetasJSON().dump(),
            R"({"#type":"Any","#undefined":true,"#message":"second | first"})");
  EXPECT_EQ(Defined->GetasJSON().dump(), R"({"#type":"Any"})");
}

TEST_F(AnyTest, AVeryLongChainIsFreedWithoutRecursion) {
  auto Undefined = MakeRef<TOCLAny>(TUndefined{u"0"});
  for (int i = 1; i < 200000; ++i)
    Undefined->AddException(u"x");
  EXPECT_TRUE(Undefined->GetunDefined());
  Undefined = nullptr;  // the leak checker and the stack both have to survive this
}

TEST_F(AnyTest, TypeOperations) {
  auto Patient = MakeRef<TRTTIClass>(u"Patient", Globals->Get_Any());
  auto Value = MakeRef<TPatient>(Patient);
  auto AnyType = MakeRef<TOCLT>(Globals->Get_Any());
  auto RealType = MakeRef<TOCLT>(Globals->Get_Real());
  EXPECT_TRUE(IsTrue(Value->oclIsKindOf(AnyType.get())));
  EXPECT_TRUE(IsFalse(Value->oclIsKindOf(RealType.get())));
  EXPECT_TRUE(IsTrue(MakeRef<TOCLInteger>(1)->oclIsKindOf(RealType.get())));
  EXPECT_TRUE(
      IsFalse(MakeRef<TOCLReal>(1)->oclIsKindOf(MakeRef<TOCLT>(Globals->Get_Integer()).get())));
  EXPECT_EQ(Value->oclIsKindOf(nullptr).get(), TOCLBoolean::UndefinedBoolean().get());

  Ref<IOCLT> Type = Value->oclType();
  EXPECT_EQ(Type->GetOCLClassType(), Ref<IRTTIClass>(Patient));
  EXPECT_TRUE(Type->isEqual(MakeRef<TOCLT>(Patient).get()));
  EXPECT_EQ(Value->GetasString(), u"<Patient: TPatient>");
  EXPECT_EQ(Type->GetasString(), u"Patient");
  EXPECT_EQ(MakeRef<TOCLT>(TUndefined{u"why"})->GetasString(), u"null< TOCLT: >");
  EXPECT_TRUE(IsFalse(Value->oclIsInState(nullptr)));
}

TEST_F(AnyTest, EngineFaultsRaiseTheirMessages) {
  auto Value = MakeRef<TOCLAny>();
  ExpectMessage<EOCLException>([&] { Value->_LessThan(Value.get()); },
                               u"Data type can't be sorted.");
  ExpectMessage<EOCLException>([&] { Value->oclAsType(nullptr); },
                               u"Internal OCL error: should not call oclAsType() directly.");
  ExpectMessage<EOCLException>(
      [&] { Value->GetOCLClassType(); },
      u"Internal error:  should not call OCLClassType from TOCLAny class.");
  ExpectMessage<EOCLException>([&] { Value->SetasString(u"x"); },
                               u"no asString setter defined for class=TOCLAny");
  ExpectMessage<EOCLException>([&] { MakeRef<TOCLNull>()->SetasString(u"x"); },
                               u"no asString setter defined for class=TOCLNull");
  auto NoGUID = MakeRef<TRTTIClass>(u"Broken");
  NoGUID->SetInstanceIntf(nullGUID);
  ExpectMessage<EOCLException>([&] { MakeRef<TOCLAny>(Ref<IRTTIClass>(NoGUID)); },
                               u"null GUID for Gello Class Broken");
  EXPECT_NO_THROW(MakeRef<TOCLAny>(Ref<IRTTIClass>(Globals->Get_Any())));
  // Values without properties answer empty.
  EXPECT_EQ(Value->GetPropertyCount(), 0);
  EXPECT_EQ(Value->GetPropertyByName(u"p"), nullptr);
  Ref<IRTTIClassInstance> Made = Value->ClassFactory(u"Fresh");
  ASSERT_TRUE(Made);
  EXPECT_EQ(Made->GetInstanceType()->GetName(), u"Fresh");
}

TEST_F(AnyTest, NullCheckTurnsNilIntoANullValue) {
  Ref<IOCLAny> Value = MakeRef<TOCLInteger>(4);
  EXPECT_EQ(TOCLAny::NullCheck(Value), Value);
  Ref<IOCLAny> Null = TOCLAny::NullCheck(nullptr);
  ASSERT_TRUE(Null);
  EXPECT_TRUE(IsFalse(Null->oclIsDefined()));
  EXPECT_EQ(Null->GetasString(), u"null< Any: TOCLNull> ");
  auto Field = DynCast<IOCLAny>(Null->GetPropertyByName(u"anything"));
  ASSERT_TRUE(Field);
  EXPECT_TRUE(IsFalse(Field->oclIsDefined()));
}
