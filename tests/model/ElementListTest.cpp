#include "gello/model/ElementList.h"

#include <gtest/gtest.h>

#include <vector>

#include "MadeClasses.h"
#include "gello/model/Element.h"

using namespace gello;

namespace {

Ref<IRTTIElement> Named(const char16_t* Name) {
  return MakeRef<TRTTIElement>(Name);
}

Ref<TRTTIElementList> ListOf(std::initializer_list<Ref<IRTTIElement>> Items) {
  return MakeRef<TRTTIElementList>(Items);
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

// Short lists are searched and long ones indexed: the same story is told after F other
// elements, F chosen so that the list is short throughout, grows long in the middle, or is long
// from the start.
class ElementListNames : public testing::TestWithParam<int> {};

TEST_P(ElementListNames, IndexAgreesWithTheListThroughEqualNamesAndChanges) {
  const int F = GetParam();
  auto List = MakeRef<TRTTIElementList>();
  for (int i = 0; i < F; ++i)
    List->Add(Named((u"f" + IntToStr(i)).c_str()));
  Ref<IRTTIElement> A = Named(u"a"), X1 = Named(u"x"), X2 = Named(u"x"), X3 = Named(u"x");
  List->Add(A);
  EXPECT_EQ(List->Add(X1), F + 1);
  List->Add(X2);
  List->Add(X3);
  EXPECT_EQ(List->GetItemByName(u"x"), X3);  // the last added wins
  EXPECT_EQ(List->IndexOf(u"x"), F + 3);
  EXPECT_FALSE(List->GetItemByName(u"X"));
  List->Delete(F + 2);  // from the middle of the equal names
  Ref<IRTTIElementList> Same = List->ItemsByName(u"x");
  ASSERT_EQ(Same->GetCount(), 2);
  EXPECT_EQ(Same->GetItems(0), X1);  // in the order added
  EXPECT_EQ(Same->GetItems(1), X3);
  List->Delete(F + 2);
  EXPECT_EQ(List->GetItemByName(u"x"), X1);  // the older one again
  auto B = Named(u"b");
  List->SetItems(F + 1, B);
  EXPECT_FALSE(List->GetItemByName(u"x"));
  EXPECT_EQ(List->GetItemByName(u"b"), B);
  EXPECT_FALSE(List->Exists(X1.get()));
  List->SetItemByName(u"a", X1);  // replaces a at its position
  EXPECT_EQ(List->GetItems(F), X1);
  EXPECT_FALSE(List->GetItemByName(u"a"));
  List->SetItemByName(u"c", A);  // not there: added
  EXPECT_EQ(List->GetCount(), F + 3);
  // Inserted before an element of its name, it is still the newer one.
  List->Insert(F, X2);
  EXPECT_EQ(List->IndexOf(u"x"), F);
  EXPECT_EQ(List->IndexOfElement(X1.get()), F + 1);
  Ref<IRTTIElementList> Sorted = List->GetSortedItems();
  EXPECT_EQ(Sorted->GetItems(F + 2), X2);  // a, b, the f names, then x newest first
  EXPECT_EQ(Sorted->GetItems(F + 3), X1);
  // The same element twice: removing one copy keeps the other findable.
  List->Delete(F);
  List->Add(X1);
  List->Delete(F);
  EXPECT_EQ(List->GetItemByName(u"x"), X1);
  EXPECT_TRUE(List->Exists(X1.get()));
  List->Delete(List->GetCount() - 1);
  EXPECT_FALSE(List->GetItemByName(u"x"));
  EXPECT_EQ(List->ItemsByName(u"x")->GetCount(), 0);
  // A rename after adding does not move the index entry, and the element still leaves cleanly.
  auto Unnamed = MakeRef<TRTTIElement>();
  List->Add(Unnamed);
  Unnamed->SetName(u"late");
  EXPECT_FALSE(List->GetItemByName(u"late"));
  EXPECT_EQ(List->GetItemByName(u""), Unnamed);
  EXPECT_TRUE(List->Exists(Unnamed.get()));
  EXPECT_FALSE(List->Exists(Named(u"b").get()));  // another element of a name held
  EXPECT_FALSE(List->Exists(nullptr));
  List->Delete(List->GetCount() - 1);
  EXPECT_FALSE(List->GetItemByName(u""));
  EXPECT_FALSE(List->Exists(Unnamed.get()));
  List->Clear();
  EXPECT_FALSE(List->GetItemByName(u"b"));
}

INSTANTIATE_TEST_SUITE_P(ShortGrowingAndLong, ElementListNames, testing::Values(0, 14, 20));

TEST(ElementList, RefusesNullAndBadPositions) {
  auto List = MakeRef<TRTTIElementList>();
  EXPECT_EQ(AssertionText([&] { List->Add(nullptr); }), u"Adding null element to list");
  EXPECT_THROW(List->GetItems(0), Exception);
  EXPECT_THROW(List->Delete(-1), Exception);
  EXPECT_THROW(List->Insert(1, Named(u"a")), Exception);
  EXPECT_THROW(List->SetItems(0, Named(u"a")), Exception);
  EXPECT_EQ(List->GetCount(), 0);
}

TEST(ElementList, IncludeAddsOnlyNewElements) {
  Ref<IRTTIElement> A = Named(u"a"), B = Named(u"b"), OtherA = Named(u"a");
  auto List = ListOf({A});
  List->Include(ListOf({B, A, OtherA}).get());
  List->Include(nullptr);
  EXPECT_EQ(List->GetCount(), 3);  // identity decides, not the name
  EXPECT_EQ(List->GetItems(1), B);
  EXPECT_EQ(List->GetItems(2), OtherA);
  List->IncludeElement(B);
  EXPECT_EQ(List->GetCount(), 3);
}

TEST(ElementList, SortOrdersByCharacterCodeAndSortedItemsByTheIndex) {
  auto List = MakeRef<TRTTIElementList>();
  for (const char16_t* Name : {u"delta", u"Beta", u"alpha", u"beta", u"Alpha", u"c", u"a"})
    List->Add(Named(Name));
  List->Sort();
  EXPECT_EQ(Names(*List),
            (std::vector<String>{u"Alpha", u"Beta", u"a", u"alpha", u"beta", u"c", u"delta"}));
  EXPECT_EQ(List->GetItemByName(u"c")->GetName(), u"c");
  auto Single = ListOf({Named(u"z")});
  Single->Sort();
  EXPECT_EQ(Names(*Single), std::vector<String>{u"z"});
  Ref<IRTTIElement> B1 = Named(u"b"), A = Named(u"a"), B2 = Named(u"b");
  Ref<IRTTIElementList> Sorted = ListOf({B1, A, B2})->GetSortedItems();
  ASSERT_EQ(Sorted->GetCount(), 3);
  EXPECT_EQ(Sorted->GetItems(0), A);
  EXPECT_EQ(Sorted->GetItems(1), B2);  // among equal names the last added first
  EXPECT_EQ(Sorted->GetItems(2), B1);
}

TEST(ElementList, UMLIdLookupFollowsIdsAndOrder) {
  Ref<IRTTIElement> A = Named(u"a"), B = Named(u"b"), C = Named(u"c");
  auto List = ListOf({A, B, C});
  B->SetUML_ID(u"id-b");
  EXPECT_EQ(List->GetItemByUMLID(u"id-b"), B);
  EXPECT_FALSE(List->GetItemByUMLID(u"ID-B"));
  // Ids made or changed after a lookup are seen by the next one.
  EXPECT_EQ(List->GetItemByUMLID(UMLIdOf(C->GetGUID())), C);
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
}

TEST(ElementList, ResetClearsEveryElementAndMergeFlagIsKept) {
  auto A = MakeRef<TCountingElement>(u"a");
  auto B = MakeRef<TCountingElement>(u"b");
  auto List = ListOf({A, B});
  List->Delete(1);
  EXPECT_EQ(B->Clears, 0);  // deleting does not clear
  List->SetMergeElements(true);
  List->Reset();
  EXPECT_EQ(A->Clears, 1);
  EXPECT_EQ(List->GetCount(), 0);
  EXPECT_FALSE(List->GetItemByName(u"a"));
  EXPECT_TRUE(List->GetMergeElements());
}
