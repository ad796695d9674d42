#include <gtest/gtest.h>

#include <initializer_list>
#include "RegistryFixture.h"
#include "gello/expr/Value.h"
#include "gello/model/ElementList.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/String.h"
#include "gello/registry/Invoke.h"
#include "gello/registry/RegisteredMethod.h"

using namespace gello;

namespace {

// What an evaluator does: the value's class, the method that fits the argument types, the slot.
struct EndToEndTest : RegistryTest {
  Ref<IRTTIMethod> Found;

  Ref<IOCLAny> Call(const Ref<IOCLAny>& Self, const String& Name,
                    std::initializer_list<Ref<IOCLAny>> Args) {
    auto Types = MakeRef<TRTTIElementList>();
    std::vector<IOCLAny*> Raw;
    for (const Ref<IOCLAny>& Arg : Args) {
      Types->Add(MakeRef<TRTTIValue>(Arg->GetInstanceType()));
      Raw.push_back(Arg.get());
    }
    Found = Self->GetInstanceType()->FindMethod(Name, Types.get());
    EXPECT_TRUE(Found) << ToUTF8(Name);
    return Found ? ExecuteMethod(Self.get(), Raw, GetMethodInfo(Found.get())) : nullptr;
  }
};

Ref<IOCLAny> Int(std::int64_t Value) {
  return MakeRef<TOCLInteger>(Value);
}
std::int64_t AsInt(const Ref<IOCLAny>& Value) {
  return DynCast<IOCLInteger>(Value)->GetasInt64();
}

}  // namespace

TEST_F(EndToEndTest, OperatorsResolveByArgumentTypes) {
  EXPECT_EQ(AsInt(Call(Int(2), u"+", {Int(3)})), 5);
  EXPECT_EQ(Found->GetVmtIndex(), 65);
  EXPECT_EQ(AsInt(Call(Int(2), u"-", {Int(3)})), -1);
  const int Binary = Found->GetVmtIndex();
  EXPECT_EQ(AsInt(Call(Int(2), u"-", {})), -2);
  EXPECT_NE(Found->GetVmtIndex(), Binary);
  // An Integer with a Real finds the Real "+" of the ancestor and answers a Real.
  Ref<IOCLAny> Mixed = Call(Int(2), u"+", {MakeRef<TOCLReal>(0.5L)});
  EXPECT_EQ(DynCast<IOCLReal>(Mixed)->GetasExtended(), 2.5L);
  EXPECT_FALSE(DynCast<IOCLInteger>(Mixed));
  EXPECT_EQ(Call(Int(2), u"=", {Int(2)})->GetasString(), u"true");
  EXPECT_EQ(Call(Int(2), u"=", {Int(3)})->GetasString(), u"false");
}

TEST_F(EndToEndTest, StringAndCollectionOperations) {
  Ref<IOCLAny> Hello = MakeRef<TOCLString>(u"hello");
  EXPECT_EQ(AsInt(Call(Hello, u"size", {})), 5);
  EXPECT_EQ(Call(Hello, u"substring", {Int(2), Int(3)})->GetasString(), u"el");
  EXPECT_EQ(Call(Hello, u"=", {MakeRef<TOCLString>(u"hello")})->GetasString(), u"true");
  auto Numbers = MakeRef<TOCLSequence>();
  Numbers->Add(Int(1));
  Ref<IOCLAny> Longer = Call(Numbers, u"including", {Int(2)});
  EXPECT_EQ(DynCast<IOCLSequence>(Longer)->GetCount(), 2);
  EXPECT_EQ(AsInt(Call(Longer, u"size", {})), 2);
  EXPECT_EQ(Numbers->GetCount(), 1);
}
