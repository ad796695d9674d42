#include "gello/model/Scope.h"

#include <gtest/gtest.h>

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/Class.h"
#include "gello/model/ElementList.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

struct ScopeTest : testing::Test {
  Ref<TRTTIScope> Scope = MakeRef<TRTTIScope>(u"s", true);
  Ref<TRTTIClass> Any = MakeRef<TRTTIClass>(u"Any");
  void TearDown() override {
    Scope->Clear();
    Any->Clear();
  }
};

}  // namespace

TEST_F(ScopeTest, NamesAndUMLIdsAreTakenAndLookupFallsBackToIds) {
  auto First = MakeRef<TRTTIElement>(u"x");
  EXPECT_TRUE(Scope->AddMember(First));
  EXPECT_FALSE(Scope->AddMember(MakeRef<TRTTIElement>(u"x")));
  EXPECT_THROW(Scope->AddMember(nullptr), EAssertionFailed);
  EXPECT_EQ(Scope->GetMembers()->GetCount(), 1);
  // A name equal to a member's UML id is taken too.
  TLogCapture Log;
  EXPECT_FALSE(Scope->AddMember(MakeRef<TRTTIElement>(First->GetUML_ID())));
  EXPECT_EQ(Log.Count(u"UMLID "), 1u);
  Log.Clear();
  EXPECT_EQ(Scope->Lookup<IRTTIElement>(u"x"), Ref<IRTTIElement>(First));
  EXPECT_TRUE(Log.Lines().empty());
  const String Id = First->GetUML_ID();
  // The id step returns the element whatever interface was asked for.
  EXPECT_EQ(Scope->Lookup(Id, IRTTIProperty::IID), Ref<IRTTIElement>(First));
  ASSERT_EQ(Log.Lines().size(), 1u);
  EXPECT_EQ(Log.Lines()[0], u"UMLID " + Id + u" found.  Real namex");
  EXPECT_FALSE(Scope->Lookup(u"Nobody", IRTTIElement::IID));
  EXPECT_EQ(Log.Lines().size(), 1u);
}

TEST_F(ScopeTest, FindReturnsOnlyTheLastAddedAndOnlyWithTheInterface) {
  auto Property = MakeRef<TRTTIProperty>(u"x", Any);
  auto Class = MakeRef<TRTTIClass>(u"x");
  Scope->GetMembers()->Add(Class);
  Scope->GetMembers()->Add(Property);
  EXPECT_FALSE(Scope->Find<IRTTIClass>(u"x"));  // the property hides the class
  EXPECT_EQ(Scope->Find<IRTTIProperty>(u"x"), Ref<IRTTIProperty>(Property));
  EXPECT_FALSE(Scope->Find(u"x", GUID::Create()));  // an unknown interface is never supported

  auto Other = MakeRef<TRTTIScope>(u"o", true);
  Other->GetMembers()->Add(Property);
  Other->GetMembers()->Add(Class);
  EXPECT_EQ(Other->FindClass(u"x"), Ref<IRTTIClass>(Class));
  Ref<IRTTIElementList> Elements = Other->FindAll(u"x", IRTTIElement::IID);
  ASSERT_EQ(Elements->GetCount(), 2);
  EXPECT_EQ(Elements->GetItems(0), Ref<IRTTIElement>(Property));
  EXPECT_EQ(Other->FindAll(u"x", IRTTIClass::IID)->GetCount(), 1);
  EXPECT_EQ(Other->LookupAll(u"x", IRTTIProperty::IID)->GetCount(), 1);
  Other->GetMembers()->Clear();
}

TEST_F(ScopeTest, VisibleMembersSkipHiddenOnes) {
  auto A = MakeRef<TRTTIElement>(u"a"), B = MakeRef<TRTTIElement>(u"b"),
       C = MakeRef<TRTTIElement>(u"c");
  B->SetHidden(true);
  Scope->AddMember(A);
  Scope->AddMember(B);
  Scope->AddMember(C);
  EXPECT_EQ(Scope->GetVisibleCount(), 2);
  EXPECT_EQ(Scope->GetVisibleMembers(0), Ref<IRTTIElement>(A));
  EXPECT_EQ(Scope->GetVisibleMembers(1), Ref<IRTTIElement>(C));
  EXPECT_FALSE(Scope->GetVisibleMembers(2));
  EXPECT_FALSE(Scope->GetVisibleMembers(-1));
}

TEST_F(ScopeTest, ClearHonoursOwnership) {
  auto Owned = MakeRef<TRTTIProperty>(u"p", Any);
  Scope->AddMember(Owned);
  auto Borrower = MakeRef<TRTTIScope>(u"b", false);
  auto Borrowed = MakeRef<TRTTIProperty>(u"q", Any);
  Borrower->AddMember(Borrowed);
  Borrower->Clear();
  EXPECT_EQ(Borrower->GetMembers()->GetCount(), 0);
  EXPECT_EQ(Borrowed->GetPropertyType(), Ref<IRTTIClass>(Any));  // left intact for its owner
  Scope->Clear();
  EXPECT_FALSE(Owned->GetPropertyType());  // the owner cleared it
}
