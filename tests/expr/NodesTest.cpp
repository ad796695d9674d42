#include <gtest/gtest.h>

#include <vector>

#include "../model/MadeClasses.h"
#include "gello/expr/ControlNodes.h"
#include "gello/expr/ElementStack.h"
#include "gello/expr/Literals.h"
#include "gello/expr/Navigation.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"
#include "gello/model/Scope.h"

using namespace gello;

namespace {

// An element of kind Base that notes its name in Log when it is resolved.
template <class Base>
struct TProbe : Base {
  std::vector<String>* Log;
  TProbe(const String& Name, std::vector<String>& Log) : Base(Name), Log(&Log) {}
  void Resolve(IRTTIScope* Scope) override {
    Log->push_back(this->GetName());
    Base::Resolve(Scope);
  }
};
using TValueProbe = TProbe<TRTTIValue>;

struct NodesTest : MadeClasses {
  std::vector<String> Log;
  Ref<IRTTIValue> Probe(const String& Name) { return MakeRef<TValueProbe>(Name, Log); }
  Ref<IRTTIElementList> Probes(std::initializer_list<const char16_t*> Names) {
    auto List = MakeRef<TRTTIElementList>();
    for (const char16_t* Name : Names)
      List->Add(Probe(Name));
    return List;
  }
};

}  // namespace

TEST_F(NodesTest, ResolveVisitsThePartsInOrderAndBindsTheResultType) {
  auto Real = Class(u"Integer");
  auto Scope = MakeRef<TRTTIScope>(u"S", false);
  Scope->AddMember(Real);
  auto Placeholder = Class(u"Integer");

  auto Call = MakeRef<TRTTIMethodCall>(u"+", Placeholder, Probe(u"receiver"), Probes({u"a", u"b"}),
                                       MakeRef<TProbe<TRTTIMethod>>(u"method", Log));
  Call->Resolve(Scope.get());
  EXPECT_EQ(Log, (std::vector<String>{u"receiver", u"method", u"a", u"b"}));
  EXPECT_EQ(Call->GetValueType(), Real);

  Log.clear();
  auto Iterate = MakeRef<TRTTICollectionMethod>(
      u"iterate", Placeholder, Probe(u"source"), MakeRef<TProbe<TRTTIProperty>>(u"it", Log),
      MakeRef<TProbe<TRTTIProperty>>(u"acc", Log), Probes({u"body"}));
  Iterate->Resolve(Scope.get());
  EXPECT_EQ(Log, (std::vector<String>{u"source", u"acc", u"it", u"body"}));

  Log.clear();
  auto Select =
      MakeRef<TRTTICollectionMethod>(u"select", Placeholder, Probe(u"source"),
                                     MakeRef<TProbe<TRTTIProperty>>(u"it", Log), nullptr, nullptr);
  Select->Resolve(Scope.get());
  EXPECT_EQ(Log, (std::vector<String>{u"source", u"it"}));
  EXPECT_FALSE(Select->Getaccum());

  Log.clear();
  MakeRef<TRTTIConditional>(Placeholder, Probe(u"if"), Probe(u"then"), nullptr)
      ->Resolve(Scope.get());
  MakeRef<TRTTIPropertyRef>(u"name", Placeholder, Probe(u"owner"))->Resolve(Scope.get());
  MakeRef<TRTTIPragma>(Placeholder, u"trace", Probes({u"nested"}))->Resolve(Scope.get());
  MakeRef<TRTTIStatements>(Placeholder, Probes({u"let"}), Probe(u"result"))->Resolve(Scope.get());
  EXPECT_EQ(Log, (std::vector<String>{u"if", u"then", u"owner", u"let", u"result"}));
  Scope->Clear();
}

TEST_F(NodesTest, StatementBlockWithoutReturnValueRefusesToResolve) {
  auto Block = MakeRef<TRTTIStatements>(Class(u"Integer"), Probes({}), nullptr);
  EXPECT_EQ(AssertionText([&] { Block->Resolve(nullptr); }), u"Assertion failure");
}

TEST_F(NodesTest, ClearReleasesSubExpressionsAndBreaksCycles) {
  auto Inner = MakeRef<TRTTIMethodCall>(u"f", nullptr, nullptr, nullptr, nullptr);
  auto Outer = MakeRef<TRTTIConditional>(nullptr, Inner, nullptr, nullptr);
  // A tree that reaches itself again, as a half-built expression may.
  Inner->Setparams(MakeRef<TRTTIElementList>(std::initializer_list<Ref<IRTTIElement>>{Outer}));
  const auto Method = MakeRef<TRTTIMethod>(u"f");
  Inner->Setmethodref(Method);
  Outer->Clear();
  EXPECT_FALSE(Outer->GetCondition());
  EXPECT_FALSE(Inner->Getparams());
  EXPECT_FALSE(Inner->Getmethodref());
  EXPECT_EQ(Outer->GetRefCount(), 1);
  EXPECT_EQ(Method->GetRefCount(), 1);
  EXPECT_EQ(Method->GetName(), u"f");  // the bound method is let go, not cleared
}

TEST(ElementStackTest, TopIsTheLastItemAndEmptyStacksRefuse) {
  TRTTIElementStack Stack;
  EXPECT_EQ(ErrorMessage([&] { Stack.Pop(); }), u"trying to pop from empty element stack.");
  EXPECT_EQ(ErrorMessage([&] { Stack.GetTop(); }), u"trying to get top of empty element stack");
  EXPECT_EQ(ErrorMessage([&] { Stack.SetTop(MakeRef<TRTTIValue>(u"x")); }),
            u"trying to set top of empty element stack");
  EXPECT_TRUE(Stack.Empty());

  Stack.Push(MakeRef<TRTTIValue>(u"a"));
  Stack.SetTop(MakeRef<TRTTIValue>(u"b"));
  EXPECT_EQ(Stack.GetCount(), 1);
  Stack.Push(MakeRef<TRTTIValue>(u"c"));
  EXPECT_EQ(Stack.GetTop()->GetName(), u"c");
  EXPECT_EQ(Stack.Pop()->GetName(), u"c");
  EXPECT_EQ(Stack.Pop()->GetName(), u"b");
  EXPECT_TRUE(Stack.Empty());
  EXPECT_EQ(Stack.IndexOf(u"b"), -1);  // popped items leave the name index too
}
