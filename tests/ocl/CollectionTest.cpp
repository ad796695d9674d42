#include <gtest/gtest.h>

#include "CollectionBuilders.h"
#include "ExpectMessage.h"
#include "SystemClassesFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Iterator.h"

using namespace gello;

namespace {

using CollectionTest = SystemClassesTest;

// Elements 1..FLimit drawn from outside memory, through its own fast iterator.
class TCounting : public TOCLSequence {
 public:
  explicit TCounting(int Limit) : TOCLSequence(nullptr, false), FLimit(Limit) {}
  Ref<IFastIterator> FastIterator() override { return MakeRef<TCursor>(FLimit); }

 private:
  struct TCursor : IFastIterator {
    explicit TCursor(int Limit) : FLimit(Limit) {}
    bool AtEnd() const override { return FLimit == 0 || FPosition >= FLimit; }
    Ref<IOCLAny> CurrentElement() const override { return AtEnd() ? nullptr : Int(FPosition + 1); }
    int CurrentPosition() const override { return FPosition; }
    bool Advance() override { return ++FPosition >= FLimit; }
    int FLimit;
    int FPosition = -1;
  };
  int FLimit;
};

// External data whose class forgot to supply the iterators.
class TNoCursor : public TOCLBag {
 public:
  TNoCursor() : TOCLBag(nullptr, false) {}
};

// Evaluates the body "accumulator + element" (thunk 1) or "element" (thunk 2), counting calls.
class TAddingVM : public IGelloVM {
 public:
  Ref<IOCLAny> EvaluateBody(std::int32_t thunk_addr, IOCLAny* element,
                            IOCLAny* accumulator) override {
    ++Calls;
    if (thunk_addr == 2) return Ref<IOCLAny>(element);
    auto* Sum = dynamic_cast<IOCLInteger*>(accumulator);
    return Sum->_ADD_(dynamic_cast<IOCLInteger*>(element));
  }
  int Calls = 0;
};

}  // namespace

TEST_F(CollectionTest, MembershipCountingAndEmptiness) {
  auto Empty = Seq({});
  EXPECT_EQ(Empty->size()->GetasInt64(), 0);
  EXPECT_TRUE(Empty->isEmpty()->GetasBoolean());
  EXPECT_FALSE(Empty->includes(Int(1).get())->GetasBoolean());
  EXPECT_TRUE(Empty->includesAll(Seq({}).get())->GetasBoolean());
  EXPECT_EQ(Text(Empty->sort()), u"Sequence{}");

  auto Mixed = MakeRef<TOCLBag>();
  Mixed->Add(Int(1));
  Mixed->Add(MakeRef<TOCLReal>(1.0L));
  Mixed->Add(MakeRef<TOCLString>(u"1"));
  Mixed->Add(nullptr);
  Mixed->Add(TOCLBoolean::BooleanValue(true));
  // The element's equality decides: Integer 1 and Real 1.0 meet, the String '1' does not.
  EXPECT_TRUE(Mixed->includes(MakeRef<TOCLReal>(1.0L).get())->GetasBoolean());
  EXPECT_EQ(Mixed->_count_(Int(1).get())->GetasInt64(), 2);
  EXPECT_EQ(Mixed->_count_(MakeRef<TOCLString>(u"1").get())->GetasInt64(), 1);
  EXPECT_FALSE(Mixed->includes(TOCLBoolean::BooleanValue(false).get())->GetasBoolean());
  EXPECT_FALSE(Mixed->includes(nullptr)->GetasBoolean());
  EXPECT_TRUE(Mixed->includesAll(Seq({1, 1}).get())->GetasBoolean());
  EXPECT_FALSE(Mixed->includesAll(Seq({1, 2}).get())->GetasBoolean());
  EXPECT_TRUE(Mixed->excludesAll(Seq({2, 3}).get())->GetasBoolean());
  // Replacing and truncating keep membership in step with the elements.
  Mixed->SetItems(0, Int(5));
  EXPECT_EQ(Mixed->_count_(Int(1).get())->GetasInt64(), 1);
  EXPECT_TRUE(Mixed->includes(Int(5).get())->GetasBoolean());
  Mixed->SetCount(1);
  EXPECT_FALSE(Mixed->includes(MakeRef<TOCLReal>(1.0L).get())->GetasBoolean());
}

TEST_F(CollectionTest, MembershipStaysRightThroughManyReplacements) {
  // Enough elements and replacements to grow the index several times and reuse erased slots.
  auto Numbers = Seq({});
  for (int i = 0; i < 3000; ++i)
    Numbers->Add(Int(i % 1000));
  for (int Round = 1; Round <= 3; ++Round)
    for (int i = 0; i < 3000; ++i)
      Numbers->SetItems(i, Int(i % 1000 + Round * 1000));
  EXPECT_FALSE(Numbers->includes(Int(2999).get())->GetasBoolean());
  EXPECT_EQ(Numbers->_count_(Int(3005).get())->GetasInt64(), 3);
  EXPECT_EQ(Numbers->indexOf(MakeRef<TOCLReal>(3999.0L).get())->GetasInt64(), 1000);
  EXPECT_EQ(Numbers->excluding(Int(3000).get())->GetCount(), 2997);
  Numbers->InternalSort();
  EXPECT_EQ(Numbers->indexOf(Int(3001).get())->GetasInt64(), 4);
}

TEST_F(CollectionTest, OlderVersionsStayUnchangedWhenSuccessorsAppend) {
  // Each including appends to the store its receiver shares with every older version.
  std::vector<Ref<IOCLSet>> Versions{MakeRef<TOCLSet>()};
  for (int i = 0; i < 100; ++i)
    Versions.push_back(Versions.back()->including(Int(i).get()));
  for (int n = 0; n <= 100; n += 25) {
    EXPECT_EQ(Versions[n]->GetCount(), n);
    EXPECT_FALSE(Versions[n]->includes(Int(n).get())->GetasBoolean());
    EXPECT_EQ(Versions[n]->includes(Int(n - 1).get())->GetasBoolean(), n > 0);
  }
  // A second successor of a version takes the position its first successor already filled.
  Ref<IOCLSet> Branch = Versions[2]->including(Int(-1).get())->including(Int(-2).get());
  EXPECT_EQ(Text(Branch), u"Set{0,1,-1,-2}");
  EXPECT_EQ(Text(Versions[3]), u"Set{0,1,2}");
  EXPECT_FALSE(Versions[3]->includes(Int(-1).get())->GetasBoolean());
  EXPECT_FALSE(Branch->includes(Int(2).get())->GetasBoolean());
  // Unhashed elements, which are scanned, stay with their version too.
  auto Odd = MakeRef<TOCLAny>();
  Ref<IOCLSet> WithOdd = Versions[100]->including(Odd.get());
  EXPECT_TRUE(WithOdd->includes(Odd.get())->GetasBoolean());
  EXPECT_FALSE(Versions[100]->includes(Odd.get())->GetasBoolean());

  // Sequences and Bags share the same way; changing a successor in place copies it first.
  auto Short = Seq({1, 2});
  Ref<IOCLSequence> Longer = Short->append(Int(1).get());
  EXPECT_EQ(Short->_count_(Int(1).get())->GetasInt64(), 1);
  EXPECT_EQ(Longer->_count_(Int(1).get())->GetasInt64(), 2);
  auto* Changed = dynamic_cast<TOCLCollection*>(Longer.get());
  Changed->SetItems(0, Int(9));
  Changed->InternalSort();
  EXPECT_EQ(Text(Longer), u"Sequence{1,2,9}");
  EXPECT_EQ(Text(Short), u"Sequence{1,2}");
  EXPECT_EQ(Short->indexOf(Int(2).get())->GetasInt64(), 2);
  Changed->SetCount(1);
  EXPECT_EQ(Text(Short->including(Int(3).get())), u"Sequence{1,2,3}");
  auto Few = BagOf({1});
  Ref<IOCLBag> More = Few->including(Int(1).get());
  EXPECT_EQ(Few->_count_(Int(1).get())->GetasInt64(), 1);
  EXPECT_EQ(More->_count_(Int(1).get())->GetasInt64(), 2);
}

TEST_F(CollectionTest, JSONFormsListTheElements) {
  auto Mixed = MakeRef<TOCLSequence>();
  Mixed->Add(Int(1));
  Mixed->Add(MakeRef<TOCLString>(u"a"));
  Mixed->Add(nullptr);
  Mixed->Add(SetOf({2}));
  EXPECT_EQ(Mixed->GetasCompactJSON().dump(), R"([1,"a",null,[2]])");
  EXPECT_EQ(Mixed->GetasJSON().dump(),
            R"j({"#type":"Sequence(T)",".value":[{"#type":"Integer",".value":1},)j"
            R"j({"#type":"String",".value":"a"},null,)j"
            R"j({"#type":"Set(T)",".value":[{"#type":"Integer",".value":2}]}]})j");
  EXPECT_EQ(BagOf({1, 1})->GetasJSON().dump(),
            R"j({"#type":"Bag(T)",".value":[{"#type":"Integer",".value":1},)j"
            R"j({"#type":"Integer",".value":1}]})j");
  EXPECT_EQ(MakeRef<TCounting>(3)->GetasCompactJSON().dump(), "[1,2,3]");
  EXPECT_EQ(Seq({})->GetasCompactJSON().dump(), "[]");
}

TEST_F(CollectionTest, SortSumAndPlaceholders) {
  EXPECT_EQ(Text(SetOf({3, 1, 2})->sort()), u"Sequence{1,2,3}");
  auto Words = MakeRef<TOCLSequence>();
  for (const char16_t* Word : {u"a", u"B", u"c", u"A"})
    Words->Add(MakeRef<TOCLString>(Word));
  EXPECT_EQ(Text(Words->sort()), u"Sequence{A,B,a,c}");
  // Stable: 1 and 1.0 are equal and keep their order.
  auto Numbers = MakeRef<TOCLSequence>();
  Numbers->Add(MakeRef<TOCLReal>(1.5L));
  Numbers->Add(MakeRef<TOCLReal>(1.0L));
  Numbers->Add(Int(1));
  Numbers->Add(Int(0));
  EXPECT_EQ(Text(Numbers->sort()), u"Sequence{0,1,1,1.5}");
  Words->Add(Int(1));
  ExpectMessage<EOCLException>([&] { Words->sort(); }, u"Data types are incompatible for sorting.");
  auto Bools = BagOf({});
  Bools->Add(TOCLBoolean::BooleanValue(true));
  Bools->Add(TOCLBoolean::BooleanValue(false));
  ExpectMessage<EOCLException>([&] { Bools->sort(); }, u"Data type can't be sorted.");

  EXPECT_EQ(Text(Seq({1, 2, 3})->sum()), u"6");
  Numbers->Add(Int(2));
  EXPECT_EQ(Text(Numbers->sum()), u"5.5");
  EXPECT_FALSE(Seq({})->sum()->oclIsDefined()->GetasBoolean());
  ExpectMessage<EOCLException>([&] { Bools->sum(); }, u"Data type can't be summed.");

  EXPECT_EQ(Seq({1})->_COLLECTOP_exists(nullptr), TOCLBoolean::BooleanValue(false));
  Ref<IOCLSequence> Sorted = SetOf({2, 1})->_COLLECTOP_sortedBy(nullptr);
  EXPECT_EQ(Sorted->GetInstanceType(), Globals->Get_Set());
  ExpectMessage<EOCLException>([] { MakeRef<TOCLCollection>()->isEqual(nullptr); },
                               u"comparison of untyped collections is undefined.");
}

TEST_F(CollectionTest, IterateDrivesTheEvaluatorOncePerElement) {
  auto VM = MakeRef<TAddingVM>();
  Ref<IOCLAny> Element;
  Ref<IOCLAny> Accumulator = Int(100);
  Seq({1, 2, 3})->iterate(Element, Accumulator, 1, VM.get());
  EXPECT_EQ(Text(Accumulator), u"106");
  EXPECT_EQ(Text(Element), u"3");
  EXPECT_EQ(VM->Calls, 3);
  // The body's last result is the answer; an empty collection keeps the initial value.
  Seq({4, 5})->iterate(Element, Accumulator, 2, VM.get());
  EXPECT_EQ(Text(Accumulator), u"5");
  Seq({})->iterate(Element, Accumulator, 1, VM.get());
  EXPECT_EQ(Text(Accumulator), u"5");
  MakeRef<TCounting>(4)->iterate(Element, Accumulator, 1, VM.get());
  EXPECT_EQ(Text(Accumulator), u"15");
}

TEST_F(CollectionTest, FastAndScriptIterators) {
  auto Numbers = Seq({7, 8});
  Ref<IFastIterator> Fast = Numbers->FastIterator();
  EXPECT_EQ(Fast->CurrentElement(), nullptr);  // before the first element
  EXPECT_FALSE(Fast->Advance());
  EXPECT_EQ(Text(Fast->CurrentElement()), u"7");
  EXPECT_FALSE(Fast->Advance());
  EXPECT_TRUE(Fast->Advance());
  EXPECT_TRUE(Fast->AtEnd());
  EXPECT_TRUE(Seq({})->FastIterator()->AtEnd());

  Ref<IOCLIterator> It = Numbers->Iterator(nullptr);
  Ref<IOCLAny> Element;
  EXPECT_TRUE(It->get_next_element(Element));
  EXPECT_EQ(Text(Element), u"7");
  EXPECT_EQ(Text(It->get_element()), u"8");
  It->replace_element(Int(9));
  It->next_position();
  EXPECT_TRUE(It->at_end());
  EXPECT_FALSE(It->get_next_element(Element));
  It->reset();
  EXPECT_EQ(Text(It->get_element()), u"7");
  EXPECT_EQ(Text(Numbers), u"Sequence{7,9}");
}

TEST_F(CollectionTest, ExternalDataGoesThroughTheFastIterator) {
  auto Outside = MakeRef<TCounting>(3);
  EXPECT_EQ(Outside->GetCount(), 3);
  EXPECT_EQ(Text(Outside->GetItems(1)), u"2");
  EXPECT_EQ(Outside->GetItems(5), nullptr);
  EXPECT_TRUE(Outside->includes(Int(3).get())->GetasBoolean());
  EXPECT_TRUE(MakeRef<TCounting>(0)->isEmpty()->GetasBoolean());
  EXPECT_EQ(Text(Outside), u"Sequence{1,2,3}");
  EXPECT_TRUE(Outside->isEqual(Seq({1, 2, 3}).get()));
  EXPECT_TRUE(SetOf({3, 1, 2})->includesAll(Outside.get())->GetasBoolean());
  EXPECT_EQ(Text(Seq({0})->union_(Outside.get())), u"Sequence{0,1,2,3}");

  auto Lost = MakeRef<TNoCursor>();
  ExpectMessage<EOCLException>([&] { Lost->FastIterator(); },
                               u"TNoCursor must override FastIterator method for external data.");
  ExpectMessage<EOCLException>([&] { Lost->Iterator(nullptr); },
                               u"TNoCursor must override Iterator method for external data.");
  ExpectMessage<EOCLException>([&] { Lost->size(); },
                               u"TNoCursor must override FastIterator method for external data.");
}
