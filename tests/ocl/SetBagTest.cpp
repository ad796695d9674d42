#include <gtest/gtest.h>

#include "CollectionBuilders.h"
#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"

using namespace gello;

namespace {

using SetBagTest = SystemClassesTest;

}  // namespace

TEST_F(SetBagTest, SetOperationsKeepFirstAddedOrderAndNoDuplicates) {
  auto S = SetOf({1, 2});
  EXPECT_EQ(Text(S->including(MakeRef<TOCLReal>(2.0L).get())), u"Set{1,2}");
  EXPECT_EQ(Text(S->including(Int(0).get())), u"Set{1,2,0}");
  EXPECT_EQ(Text(S->symmetricDifference(SetOf({2, 3}).get())), u"Set{1,3}");
  EXPECT_EQ(Text(SetOf({3, 1})->union_(SetOf({1, 2, 4}).get())), u"Set{3,1,2,4}");
  EXPECT_EQ(Text(SetOf({3, 1, 2})->intersection(SetOf({2, 3}).get())), u"Set{3,2}");

  Ref<IOCLBag> Joined = S->union_(BagOf({2, 5, 5}).get());
  EXPECT_EQ(Text(Joined), u"Bag{1,2,5,5}");
  EXPECT_EQ(Joined->GetInstanceType(), Globals->Get_Bag());
  EXPECT_EQ(Text(SetOf({1, 2, 3})->intersection(BagOf({2, 9, 2, 1}).get())), u"Bag{2,2,1}");
  // The run-time kind of the argument picks the overload.
  EXPECT_EQ(Text(S->union_(static_cast<IOCLCollection*>(BagOf({1}).get()))), u"Bag{1,2}");
  EXPECT_EQ(Text(S->union_(static_cast<IOCLCollection*>(SetOf({1}).get()))), u"Set{1,2}");
  ExpectMessage<EOCLException>(
      [&] { S->intersection(static_cast<IOCLCollection*>(Seq({1}).get())); },
      u"intersection of a Set needs a Set or a Bag");

  auto Nested = MakeRef<TOCLSet>();
  Nested->Add(SetOf({1, 2}));
  Nested->Add(SetOf({2, 3}));
  EXPECT_EQ(Text(Nested->flatten()), u"Set{1,2,3}");
  EXPECT_EQ(Text(S), u"Set{1,2}");
  // Set equality is one-directional.
  EXPECT_TRUE(SetOf({2, 1})->_EQ_(SetOf({1, 2}).get())->GetasBoolean());
  EXPECT_TRUE(SetOf({1})->_EQ_(SetOf({1, 2}).get())->GetasBoolean());
  EXPECT_FALSE(SetOf({1, 2})->_EQ_(SetOf({1}).get())->GetasBoolean());
  EXPECT_FALSE(SetOf({1})->_EQ_(BagOf({1}).get())->GetasBoolean());
  EXPECT_TRUE(SetOf({1})->_NE_(Seq({1}).get())->GetasBoolean());
}

TEST_F(SetBagTest, BagOperationsKeepDuplicates) {
  auto B = BagOf({1, 2, 1, 3});
  EXPECT_EQ(Text(B->including(Int(1).get())), u"Bag{1,2,1,3,1}");
  EXPECT_EQ(Text(B->union_(SetOf({1, 4}).get())), u"Bag{1,2,1,3,1,4}");
  // Against a Bag each value is kept as often as in both; against a Set once.
  EXPECT_EQ(Text(B->intersection(BagOf({1, 3, 1, 1, 5}).get())), u"Bag{1,1,3}");
  EXPECT_EQ(Text(B->intersection(BagOf({2, 1}).get())), u"Bag{1,2}");
  EXPECT_EQ(Text(B->intersection(SetOf({1, 3}).get())), u"Bag{1,3}");
  auto Nested = MakeRef<TOCLBag>();
  Nested->Add(BagOf({1, 1}));
  Nested->Add(Int(1));
  EXPECT_EQ(Text(Nested->flatten()), u"Bag{1,1,1}");
  EXPECT_EQ(B->_COLLECTOP_collect(nullptr)->GetInstanceType(), Globals->Get_Bag());
  ExpectMessage<EOCLException>([&] { B->_EQ_(BagOf({1}).get()); },
                               u"comparison of OCL Bag is not supported yet.");
  ExpectMessage<EOCLException>([&] { B->_NE_(B.get()); },
                               u"comparison of OCL Bag is not supported yet.");
}

TEST_F(SetBagTest, TypedResultsAndTheValueFactory) {
  Ref<IRTTIClass> SetOfInt = Globals->BuildCollection(u"Set", u"Integer");
  SetOfInt->SetClassKind(rtti_set);
  Ref<IOCLAny> Made = TOCLAny::CreateFromClass(SetOfInt);
  auto* Typed = dynamic_cast<TOCLSet*>(Made.get());
  ASSERT_TRUE(Typed);
  EXPECT_EQ(Made->GetInstanceType(), SetOfInt);
  Typed->Add(Int(1));
  Ref<IOCLBag> AsBag = Typed->union_(BagOf({2}).get());
  EXPECT_EQ(AsBag->GetInstanceType()->GetName(), u"Bag(Integer)");
  EXPECT_TRUE(AsBag->GetInstanceType()->IsClass(Globals->Get_Bag().get()));

  EXPECT_TRUE(dynamic_cast<TOCLSequence*>(TOCLAny::CreateFromClass(Globals->Get_Sequence()).get()));
  Ref<IOCLSet> All = Int(3)->allInstances();
  EXPECT_EQ(All->GetInstanceType(), Globals->Get_Integer());
  EXPECT_EQ(All->GetCount(), 0);
}
