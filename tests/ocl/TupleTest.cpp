#include "gello/ocl/Tuple.h"

#include <gtest/gtest.h>

#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Class.h"
#include "gello/model/ClassInstance.h"
#include "gello/model/Property.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Null.h"

using namespace gello;

namespace {

struct TupleTest : SystemClassesTest {
  Ref<TRTTIClass> Visit = MakeRef<TRTTIClass>(u"Visit", nullptr);
  void SetUp() override {
    SystemClassesTest::SetUp();
    Visit->SetClassKind(rtti_class);
    Visit->AddMember(MakeRef<TRTTIProperty>(u"count", Globals->Get_Integer()));
    Visit->AddMember(MakeRef<TRTTIProperty>(u"urgent", Globals->Get_Boolean()));
  }
  void TearDown() override {
    Visit->Clear();
    SystemClassesTest::TearDown();
  }
};

}  // namespace

TEST_F(TupleTest, FieldsByNameAndPosition) {
  auto Tuple = MakeRef<TOCLTuple>(Visit);
  EXPECT_EQ(Tuple->GetCount(), 2);
  EXPECT_EQ(Tuple->GetPropertyName(1), u"urgent");
  Ref<IRTTIClassInstance> Count = Tuple->CreateProperty(u"count");
  ASSERT_TRUE(DynCast<IOCLInteger>(Count));
  EXPECT_EQ(Tuple->GetPropertyValue(0), Count);
  Tuple->SetPropertyByName(u"urgent", TOCLBoolean::BooleanValue(true));
  EXPECT_EQ(Tuple->GetPropertyByName(u"urgent")->GetasString(), u"true");
  Tuple->SetPropertyByName(u"nothing", TOCLBoolean::BooleanValue(true));
  EXPECT_EQ(Tuple->GetCount(), 2);
  ExpectMessage<EOCLException>([&] { Tuple->SetPropertyValue(0, NewClassInstance(u"Plain")); },
                               u"incompatible type for count");
  EXPECT_EQ(Tuple->GetPropertyValue(0), Count);  // unchanged by the refused store

  EXPECT_EQ(Tuple->GetasString(), u"<Visit>");
  EXPECT_EQ(Tuple->GetasCompactJSON().dump(), R"({"#type":"Visit","count":0,"urgent":true})");
  EXPECT_EQ(Tuple->GetasJSON().dump(), R"({"#type":"Visit","count":{"#type":"Integer",".value":0},)"
                                       R"("urgent":{"#type":"Boolean",".value":true}})");
  Tuple->AddException(u"lost");
  EXPECT_EQ(Tuple->GetasString(), u"null: Visit");
  auto Bare = MakeRef<TOCLTuple>();
  EXPECT_EQ(Bare->GetasString(), u"<Tuple>");
  EXPECT_EQ(Bare->GetInstanceType(), Globals->Get_Tuple());
  Bare->SetCount(2);
  EXPECT_EQ(Bare->GetItems(1), nullptr);
  Bare->SetItems(3, MakeRef<TOCLInteger>(9));
  EXPECT_EQ(Bare->GetCount(), 4);
  EXPECT_EQ(Bare->GetItems(3)->GetasString(), u"9");
  EXPECT_EQ(Bare->GetItems(-1), nullptr);
}

TEST_F(TupleTest, CreateFromClassChoosesTheValueClass) {
  Ref<IOCLAny> Whole = TOCLAny::CreateFromClass(Globals->Get_Integer());
  ASSERT_TRUE(DynCast<IOCLInteger>(Whole));
  EXPECT_EQ(Whole->GetasString(), u"0");
  auto Boolean = DynCast<IOCLBoolean>(TOCLAny::CreateFromClass(Globals->Get_Boolean()));
  ASSERT_TRUE(Boolean);
  // A Boolean made from a class is its own object, never one of the shared ones.
  EXPECT_NE(Boolean.get(), TOCLBoolean::BooleanValue(false).get());
  EXPECT_TRUE(DynCast<IOCLTuple>(TOCLAny::CreateFromClass(Visit)));
  auto Odd = MakeRef<TRTTIClass>(u"Odd");
  Odd->SetClassKind(static_cast<TRTTIClassKind>(12));
  EXPECT_TRUE(dynamic_cast<TOCLNull*>(TOCLAny::CreateFromClass(Odd).get()));
  ExpectMessage<EOCLException>([&] { TOCLAny::CreateFromClass(MakeRef<TRTTIClass>(u"Vague")); },
                               u"Internal error: undefined class kind (Vague)");
  ExpectMessage<EOCLException>(
      [] { TOCLAny::CreateFromClass(nullptr); },
      u"Internal Error: Gello Class is nil - has OCL Registry been initialized?");
  auto Broken = MakeRef<TRTTIClass>(u"Broken");
  Broken->SetClassKind(rtti_real);
  Broken->SetInstanceIntf(nullGUID);
  ExpectMessage<EOCLException>([&] { TOCLAny::CreateFromClass(Broken); },
                               u"null GUID for Gello Class Broken");
}
