#include <gtest/gtest.h>

#include "CollectionBuilders.h"
#include "SystemClassesFixture.h"
#include "gello/model/Class.h"
#include "gello/ocl/Boolean.h"

using namespace gello;

namespace {

using SequenceTest = SystemClassesTest;

String SubSeq(std::int64_t Lower, std::int64_t Upper) {
  return Text(Seq({1, 2, 3, 4})->subSequence(Int(Lower).get(), Int(Upper).get()));
}

}  // namespace

TEST_F(SequenceTest, PositionsCopiesIndexOfAndEquality) {
  auto S = Seq({1, 2, 3});
  EXPECT_EQ(Text(S->insertAt(Int(2).get(), Int(9).get())), u"Sequence{1,9,2,3}");
  EXPECT_EQ(Text(S->insertAt(Int(9).get(), Int(4).get())), u"Sequence{1,2,3,4}");
  EXPECT_EQ(Text(S->insertAt(Int(-3).get(), Int(4).get())), u"Sequence{4,1,2,3}");
  EXPECT_EQ(Text(S->append(Int(1).get())), u"Sequence{1,2,3,1}");
  EXPECT_EQ(Text(S->prepend(Int(3).get())), u"Sequence{3,1,2,3}");
  EXPECT_EQ(Text(S->reverse()), u"Sequence{3,2,1}");
  EXPECT_EQ(Text(S->union_(Seq({3, 4}).get())), u"Sequence{1,2,3,3,4}");
  EXPECT_EQ(Text(S), u"Sequence{1,2,3}");  // the receiver never changes

  EXPECT_EQ(Text(S->at(Int(2).get())), u"2");
  EXPECT_EQ(S->at(Int(4).get()), nullptr);
  EXPECT_EQ(Text(S->last()), u"3");
  EXPECT_EQ(Seq({})->first(), nullptr);

  EXPECT_EQ(SubSeq(0, 2), u"Sequence{1,2}");
  EXPECT_EQ(SubSeq(3, 99), u"Sequence{3,4}");
  EXPECT_EQ(SubSeq(3, 2), u"Sequence{}");
  S = Seq({1, 2, 1});
  EXPECT_EQ(Text(S->excluding(Int(1).get())), u"Sequence{2}");
  EXPECT_EQ(Text(S->excluding(MakeRef<TOCLReal>(2.0L).get())), u"Sequence{1,1}");
  EXPECT_EQ(S->indexOf(Int(2).get())->GetasInt64(), 2);
  EXPECT_EQ(S->indexOf(Int(7).get())->GetasInt64(), 0);

  EXPECT_TRUE(Seq({1, 2})->_EQ_(Seq({1, 2}).get())->GetasBoolean());
  EXPECT_FALSE(Seq({1, 2})->_EQ_(Seq({2, 1}).get())->GetasBoolean());
  EXPECT_FALSE(Seq({1, 2})->_EQ_(Seq({1}).get())->GetasBoolean());
  EXPECT_FALSE(Seq({1})->_EQ_(SetOf({1}).get())->GetasBoolean());
  EXPECT_TRUE(Seq({1})->_NE_(SetOf({1}).get())->GetasBoolean());
}

TEST_F(SequenceTest, TextFlattenAndPlaceholders) {
  auto Long = Seq({});
  for (int i = 1; i <= 22; ++i)
    Long->Add(Int(i));
  EXPECT_EQ(Text(Long), u"Sequence{1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21...}");
  Long->SetCount(21);
  EXPECT_EQ(Text(Long), u"Sequence{1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21}");
  auto WithNil = Seq({1});
  WithNil->Add(nullptr);
  EXPECT_EQ(Text(WithNil), u"Sequence{1,null}");

  // Nested collections expand at every depth, in order.
  auto Inner = Seq({2, 3});
  auto Middle = MakeRef<TOCLSet>();
  Middle->Add(Inner);
  Middle->Add(Int(4));
  auto Outer = Seq({1});
  Outer->Add(Middle);
  Outer->Add(Int(2));
  Ref<IOCLSequence> Flat = Outer->flatten();
  EXPECT_EQ(Text(Flat), u"Sequence{1,2,3,4,2}");
  EXPECT_EQ(Flat->GetInstanceType(), Globals->Get_Sequence());

  // A typed sequence of typed sets flattens to a sequence of their element class.
  auto SetOfInt = MakeRef<TRTTIClass>(u"Set(Integer)", Globals->Get_Set(), Globals->Get_Integer());
  Ref<IRTTIClass> SeqOfSets =
      MakeRef<TRTTIClass>(u"Sequence(Set(Integer))", Globals->Get_Sequence(), SetOfInt);
  auto Typed = MakeRef<TOCLSequence>(SeqOfSets);
  Typed->Add(SetOf({5}));
  Ref<IOCLSequence> TypedFlat = Typed->flatten();
  EXPECT_EQ(TypedFlat->GetInstanceType()->GetName(), u"Sequence(Integer)");
  EXPECT_EQ(Text(TypedFlat), u"Sequence{5}");

  for (Ref<IOCLSequence> Empty :
       {Typed->_COLLECTOP_collect(nullptr), Typed->_COLLECTOP_select(nullptr),
        Typed->_COLLECTOP_reject(nullptr)}) {
    EXPECT_EQ(Empty->GetCount(), 0);
    EXPECT_EQ(Empty->GetInstanceType(), SeqOfSets);
  }
}
