#include "gello/model/ElementList.h"

#include <gtest/gtest.h>

#include <vector>

#include "gello/foundation/Exceptions.h"
#include "gello/model/Element.h"

using namespace gello;

namespace {

Ref<IRTTIElement> Named(const char16_t* Name) {
  return MakeRef<TRTTIElement>(Name);
}

std::vector<String> Names(IRTTIElementList& List) {
  std::vector<String> Result;
  for (int i = 0; i < List.GetCount(); ++i)
    Result.push_back(List.GetItems(i)->GetName());
  return Result;
}

// Counts clears, to see which elements a list operation clears.
class TCountingElement : public TRTTIElement {
 public:
  using TRTTIElement::TRTTIElement;
  void Clear() override {
    ++Clears;
    TRTTIElement::Clear();
  }
  int Clears = 0;
};

}  // namespace

TEST(ElementList, EqualNamesTheLastAddedWins) {
  auto List = MakeRef<TRTTIElementList>();
  Ref<IRTTIElement> First = Named(u"x"), Second = Named(u"x");
  EXPECT_EQ(List->Add(First), 0);
  EXPECT_EQ(List->Add(Second), 1);
  EXPECT_EQ(List->GetCount(), 2);
  EXPECT_EQ(List->GetItemByName(u"x"), Second);
  EXPECT_EQ(List->IndexOf(u"x"), 1);
  EXPECT_FALSE(List->GetItemByName(u"X"));
  EXPECT_EQ(List->IndexOf(u"X"), -1);
  Ref<IRTTIElementList> Same = List->ItemsByName(u"x");
  ASSERT_EQ(Same->GetCount(), 2);
  EXPECT_EQ(Same->GetItems(0), First);  // in the order added
  EXPECT_EQ(Same->GetItems(1), Second);
}

TEST(ElementList, IndexAgreesWithTheListAfterChanges) {
  auto List = MakeRef<TRTTIElementList>();
  Ref<IRTTIElement> A = Named(u"a"), X1 = Named(u"x"), X2 = Named(u"x"), B = Named(u"b");
  List->Add(A);
  List->Add(X1);
  List->Add(X2);
  List->Delete(2);
  EXPECT_EQ(List->GetItemByName(u"x"), X1);  // the older one again
  List->SetItems(1, B);
  EXPECT_FALSE(List->GetItemByName(u"x"));
  EXPECT_EQ(List->GetItemByName(u"b"), B);
  EXPECT_FALSE(List->Exists(X1.get()));
  List->SetItemByName(u"a", X1);  // replaces a at its position
  EXPECT_EQ(Names(*List), (std::vector<String>{u"x", u"b"}));
  EXPECT_FALSE(List->GetItemByName(u"a"));
  List->SetItemByName(u"c", A);  // not there: added
  EXPECT_EQ(List->GetCount(), 3);
  List->Insert(0, X2);
  EXPECT_EQ(List->IndexOf(u"x"), 0);
  EXPECT_EQ(List->IndexOfElement(X1.get()), 1);
  List->Clear();
  EXPECT_FALSE(List->GetItemByName(u"x"));
  EXPECT_EQ(List->GetCount(), 0);
}

TEST(ElementList, DeletingAnyOfEqualNamesKeepsTheOthersInOrder) {
  auto List = MakeRef<TRTTIElementList>();
  Ref<IRTTIElement> X1 = Named(u"x"), X2 = Named(u"x"), X3 = Named(u"x");
  List->Add(X1);
  List->Add(X2);
  List->Add(X3);
  List->Delete(1);
  EXPECT_EQ(List->GetItemByName(u"x"), X3);
  Ref<IRTTIElementList> Same = List->ItemsByName(u"x");
  ASSERT_EQ(Same->GetCount(), 2);
  EXPECT_EQ(Same->GetItems(0), X1);
  List->Delete(1);
  EXPECT_EQ(List->GetItemByName(u"x"), X1);
  List->Add(X1);  // the same element twice: removing one copy keeps the other findable
  List->Delete(0);
  EXPECT_EQ(List->GetItemByName(u"x"), X1);
  EXPECT_TRUE(List->Exists(X1.get()));
  List->Delete(0);
  EXPECT_FALSE(List->GetItemByName(u"x"));
  EXPECT_FALSE(List->Exists(X1.get()));
  EXPECT_EQ(List->ItemsByName(u"x")->GetCount(), 0);
}

TEST(ElementList, RenameDoesNotMoveTheIndexEntry) {
  auto List = MakeRef<TRTTIElementList>();
  auto Unnamed = MakeRef<TRTTIElement>();
  List->Add(Unnamed);
  Unnamed->SetName(u"late");
  EXPECT_FALSE(List->GetItemByName(u"late"));
  EXPECT_EQ(List->GetItemByName(u""), Unnamed);
  List->Delete(0);  // and it can still be removed cleanly
  EXPECT_FALSE(List->GetItemByName(u""));
}

TEST(ElementList, RefusesNullAndBadPositions) {
  auto List = MakeRef<TRTTIElementList>();
  try {
    List->Add(nullptr);
    FAIL() << "null must be refused";
  } catch (const EAssertionFailed& Failure) {
    EXPECT_EQ(Failure.Text(), u"Adding null element to list");
  }
  EXPECT_THROW(List->GetItems(0), Exception);
  EXPECT_THROW(List->Delete(-1), Exception);
  EXPECT_THROW(List->Insert(1, Named(u"a")), Exception);
  EXPECT_THROW(List->SetItems(0, Named(u"a")), Exception);
  EXPECT_EQ(List->GetCount(), 0);
}

TEST(ElementList, IncludeAddsOnlyNewElements) {
  Ref<IRTTIElement> A = Named(u"a"), B = Named(u"b"), OtherA = Named(u"a");
  auto List = MakeRef<TRTTIElementList>(std::initializer_list<Ref<IRTTIElement>>{A});
  auto Other = MakeRef<TRTTIElementList>(std::initializer_list<Ref<IRTTIElement>>{B, A, OtherA});
  List->Include(Other.get());
  List->Include(nullptr);
  EXPECT_EQ(List->GetCount(), 3);  // identity decides, not the name
  EXPECT_EQ(List->GetItems(1), B);
  EXPECT_EQ(List->GetItems(2), OtherA);
  List->IncludeElement(B);
  EXPECT_EQ(List->GetCount(), 3);
}

TEST(ElementList, SortOrdersByCharacterCode) {
  auto List = MakeRef<TRTTIElementList>();
  for (const char16_t* Name : {u"delta", u"Beta", u"alpha", u"beta", u"Alpha", u"c", u"a"})
    List->Add(Named(Name));
  List->Sort();
  EXPECT_EQ(Names(*List),
            (std::vector<String>{u"Alpha", u"Beta", u"a", u"alpha", u"beta", u"c", u"delta"}));
  EXPECT_EQ(List->GetItemByName(u"c")->GetName(), u"c");
  List->Swap(0, 6);
  EXPECT_EQ(List->GetItems(0)->GetName(), u"delta");
  auto Single = MakeRef<TRTTIElementList>(std::initializer_list<Ref<IRTTIElement>>{Named(u"z")});
  Single->Sort();
  EXPECT_EQ(Single->GetCount(), 1);
}

TEST(ElementList, SortedItemsFollowTheIndexOrder) {
  auto List = MakeRef<TRTTIElementList>();
  Ref<IRTTIElement> B1 = Named(u"b"), A = Named(u"a"), B2 = Named(u"b");
  List->Add(B1);
  List->Add(A);
  List->Add(B2);
  Ref<IRTTIElementList> Sorted = List->GetSortedItems();
  ASSERT_EQ(Sorted->GetCount(), 3);
  EXPECT_EQ(Sorted->GetItems(0), A);
  EXPECT_EQ(Sorted->GetItems(1), B2);  // among equal names the last added first
  EXPECT_EQ(Sorted->GetItems(2), B1);
}

TEST(ElementList, UMLIdLookupFollowsIdsAndOrder) {
  auto List = MakeRef<TRTTIElementList>();
  Ref<IRTTIElement> A = Named(u"a"), B = Named(u"b"), C = Named(u"c");
  List->Add(A);
  List->Add(B);
  List->Add(C);
  B->SetUML_ID(u"id-b");
  EXPECT_EQ(List->GetItemByUMLID(u"id-b"), B);
  EXPECT_FALSE(List->GetItemByUMLID(u"ID-B"));
  // Ids made or changed after a lookup are seen by the next one.
  const GUID Id = C->GetGUID();  // the UML id follows from the GUID
  String Expected = u"QX_" + Id.ToString().substr(1, 36);
  for (char16_t& Ch : Expected)
    if (Ch == u'-') Ch = u'_';
  EXPECT_EQ(List->GetItemByUMLID(Expected), C);
  B->SetUML_ID(u"id-b2");
  EXPECT_FALSE(List->GetItemByUMLID(u"id-b"));
  EXPECT_EQ(List->GetItemByUMLID(u"id-b2"), B);
  // The first holder of an id in list order wins, also after moves and deletes.
  A->SetUML_ID(u"id-b2");
  EXPECT_EQ(List->GetItemByUMLID(u"id-b2"), A);
  List->Swap(0, 1);
  EXPECT_EQ(List->GetItemByUMLID(u"id-b2"), B);
  List->Delete(0);
  EXPECT_EQ(List->GetItemByUMLID(u"id-b2"), A);
  EXPECT_EQ(C->GetUML_ID(), Expected);
}

TEST(ElementList, ResetClearsEveryElementAndMergeFlagIsKept) {
  auto List = MakeRef<TRTTIElementList>();
  auto A = MakeRef<TCountingElement>(u"a");
  auto B = MakeRef<TCountingElement>(u"b");
  List->Add(A);
  List->Add(B);
  List->Delete(1);
  EXPECT_EQ(B->Clears, 0);  // deleting does not clear
  List->SetMergeElements(true);
  List->Reset();
  EXPECT_EQ(A->Clears, 1);
  EXPECT_EQ(List->GetCount(), 0);
  EXPECT_FALSE(List->GetItemByName(u"a"));
  EXPECT_TRUE(List->GetMergeElements());
}
