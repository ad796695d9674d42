#include "gello/model/Class.h"

#include <gtest/gtest.h>

#include "MadeClasses.h"
#include "gello/foundation/Log.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

using ClassTest = MadeClasses;

TEST_F(ClassTest, SelfAncestorIsRefusedWithOneWarning) {
  auto Base = Class(u"Base");
  Base->SetClassKind(rtti_real);
  auto C = Class(u"C");
  TLogCapture Log;
  C->SetAncestor(C);
  EXPECT_FALSE(C->GetAncestor());
  ASSERT_EQ(Log.Lines().size(), 1u);
  EXPECT_EQ(Log.Lines()[0], u"Warning: trying to set Class ancestor to Self (C). resetting to nil");
  C->SetAncestor(Base);  // an undefined kind takes the ancestor's
  EXPECT_EQ(C->GetClassKind(), rtti_real);
  auto D = Class(u"D");
  D->SetClassKind(rtti_string);
  D->SetAncestor(Base);
  EXPECT_EQ(D->GetClassKind(), rtti_string);
}

TEST_F(ClassTest, LookupWalksTheChainAndNearerHidesFarther) {
  auto A = Class(u"A");
  auto B = Class(u"B", A);
  auto Far = Property(A, u"p", A);
  auto OnlyA = Property(A, u"q", A);
  auto Near = MakeRef<TRTTIProperty>(u"p", B);
  B->GetMembers()->Add(Near);  // AddMember would refuse p, A already has it
  EXPECT_EQ(B->Lookup<IRTTIProperty>(u"p"), Ref<IRTTIProperty>(Near));
  EXPECT_EQ(B->Lookup<IRTTIProperty>(u"q"), OnlyA);
  EXPECT_FALSE(B->Lookup<IRTTIMethod>(u"p"));
  Ref<IRTTIElementList> All = B->LookupAll(u"p", IRTTIProperty::IID);
  ASSERT_EQ(All->GetCount(), 2);
  EXPECT_EQ(All->GetItems(0), Ref<IRTTIElement>(Near));
  EXPECT_EQ(All->GetItems(1), Ref<IRTTIElement>(Far));
  EXPECT_FALSE(B->AddMember(MakeRef<TRTTIProperty>(u"q", A)));  // an ancestor uses q
  // Classes do not take the UML id step of plain scopes.
  TLogCapture Log;
  EXPECT_FALSE(B->Lookup(OnlyA->GetUML_ID(), IRTTIElement::IID));
  EXPECT_TRUE(Log.Lines().empty());
}

TEST_F(ClassTest, AncestorLoopsEndTheChainWithOneLogLine) {
  auto X = Class(u"X");
  auto Alias = MakeRef<TRTTIClassAlias>(u"AX", X);
  X->SetAncestor(Alias);  // X -> AX, and AX answers X's ancestor: AX
  TLogCapture Log;
  EXPECT_FALSE(X->Lookup<IRTTIElement>(u"missing"));
  ASSERT_EQ(Log.Lines().size(), 1u);
  EXPECT_EQ(Log.Lines()[0], u"TRTTIClass.Lookup: ancestor loops back to self \"AX\"");

  auto P = Class(u"P"), Q = Class(u"Q", P), R = Class(u"R", Q);
  P->SetAncestor(R);  // a longer loop
  Log.Clear();
  EXPECT_FALSE(R->Lookup<IRTTIElement>(u"missing"));
  EXPECT_EQ(Log.Count(u"ancestor loops back"), 1u);
  EXPECT_EQ(R->LookupAll(u"missing", IRTTIElement::IID)->GetCount(), 0);
  auto Other = Class(u"Other");
  EXPECT_FALSE(R->HasAncestor(Other.get()));
  EXPECT_TRUE(R->HasAncestor(P.get()));
  EXPECT_FALSE(R->IsCollection());
  EXPECT_FALSE(R->GetElementType());
  EXPECT_FALSE(R->IsClass(Other.get()));
  EXPECT_EQ(R->GetPropertyCount(), 0);
  EXPECT_EQ(R->GetPropertyIndexAllocation(), 0);
  EXPECT_FALSE(R->GetProperties(0));
  auto Path = MakeRef<TRTTIElementList>();
  EXPECT_FALSE(R->Derives(Other.get(), *Path));
  X->SetAncestor(nullptr);
  Alias->Clear();
}

TEST_F(ClassTest, ElementTypesAndInstanceDataComeFromTheChain) {
  auto Integer = Class(u"Integer");
  auto Coll = Class(u"Coll");
  Coll->SetElementType(Integer);
  auto Sub = Class(u"Sub", Coll);
  EXPECT_TRUE(Sub->IsCollection());
  EXPECT_EQ(Sub->GetElementType(), Integer);
  EXPECT_EQ(Sub->GetInstanceIntf(), IID_IRTTIClassInstance);
  const GUID Custom = GUID::Create();
  Coll->SetInstanceIntf(Custom);
  Sub->SetInstanceIntf(nullGUID);
  EXPECT_EQ(Sub->GetInstanceIntf(), Custom);
  static const THostClassInfo* const Impl = reinterpret_cast<THostClass>(&Custom);
  Coll->SetInstanceImpl(Impl);
  EXPECT_EQ(Sub->GetInstanceImpl(), Impl);
}

TEST_F(ClassTest, PropertiesAreNumberedAcrossTheChain) {
  auto Type = Class(u"Type");
  auto A = Class(u"A");
  auto P = Property(A, u"p", Type);
  Property(A, u"q", Type);
  auto B = Class(u"B", A);
  B->AddMember(MakeRef<TRTTIMethod>(u"m", Type));
  auto R = Property(B, u"r", Type);
  EXPECT_EQ(B->GetPropertyIndexAllocation(), 3);
  EXPECT_EQ(P->GetPropertyIndex(), 0);
  EXPECT_EQ(R->GetPropertyIndex(), 2);
  EXPECT_EQ(B->GetPropertyCount(), 3);
  EXPECT_EQ(B->GetProperties(2), R);
  EXPECT_FALSE(B->GetProperties(3));
  // A property added at the end is numbered next; the kept count does not change.
  auto S = Property(B, u"s", Type);
  EXPECT_EQ(B->GetPropertyIndexAllocation(), 4);
  EXPECT_EQ(S->GetPropertyIndex(), 3);
  EXPECT_EQ(B->GetPropertyCount(), 3);
  // An ancestor that gains a property breaks the numbers of its descendants.
  Property(A, u"t", Type);
  EXPECT_EQ(B->GetPropertyIndexAllocation(), 4);  // B itself has not changed
  Property(B, u"u", Type);
  EXPECT_THROW(B->GetPropertyIndexAllocation(), EAssertionFailed);
}

TEST_F(ClassTest, GenericNamesSplitAtTheFirstParentheses) {
  auto Split = [this](const String& Name) {
    auto* C = dynamic_cast<TRTTIClass*>(Class(Name).get());
    return std::pair{C->ExtractBaseName(), C->ExtractElementName()};
  };
  EXPECT_EQ(Split(u"Set(Integer)"), (std::pair<String, String>(u"Set", u"Integer")));
  EXPECT_EQ(Split(u"Set(Set(Integer))").second, u"Set(Integer");
  EXPECT_EQ(Split(u"Integer"), (std::pair<String, String>(u"Integer", u"")));
  EXPECT_EQ(Split(u"Set(Integer").second, u"");
}

TEST_F(ClassTest, ResolveBindsPlaceholdersToTheScopesClasses) {
  auto Real = Class(u"Real");
  auto Scope = MakeRef<TRTTIScope>(u"pkg", true);
  Scope->AddMember(Real);
  auto User = MakeRef<TRTTIClass>(u"User", BuildClassRef(u"Real"));
  auto Typed = Property(User, u"p", BuildClassRef(u"Real"));
  auto Unknown = Property(User, u"u", BuildClassRef(u"Unknown"));
  Ref<IRTTIClass> Placeholder = Unknown->GetPropertyType();
  Scope->AddMember(User);
  User->Resolve(Scope.get());
  EXPECT_EQ(User->GetAncestor(), Real);
  EXPECT_EQ(Typed->GetPropertyType(), Real);
  EXPECT_EQ(Unknown->GetPropertyType(), Placeholder);  // nothing better: kept
  EXPECT_TRUE(User->GetResolved());
  EXPECT_TRUE(Typed->GetResolved());
  auto Walked = MakeRef<TRTTIElementList>();
  User->WalkClasses(*Walked);
  EXPECT_EQ(Walked->GetCount(), 3);
  EXPECT_TRUE(Walked->Exists(Real.get()) && Walked->Exists(Placeholder.get()) &&
              Walked->Exists(User.get()));
  Scope->Clear();
  Placeholder->Clear();
}
