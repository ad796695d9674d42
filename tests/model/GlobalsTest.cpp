#include "gello/model/Globals.h"

#include <gtest/gtest.h>

#include "gello/model/Class.h"
#include "gello/model/ElementList.h"

using namespace gello;

namespace {
struct GlobalsTest : testing::Test {
  Ref<TRTTIGlobals> Globals = MakeRef<TRTTIGlobals>();
  void TearDown() override { Globals->Clear(); }
};
}  // namespace

TEST_F(GlobalsTest, SystemHoldsTheBuiltInsInOrderWithTheirAncestors) {
  EXPECT_EQ(Globals->GetName(), u"Globals");
  Ref<IRTTIPackage> System = Globals->Get_System();
  ASSERT_EQ(Globals->GetMembers()->GetItems(0), Ref<IRTTIElement>(System));
  Ref<IRTTIElementList> Members = System->GetMembers();
  struct TBuiltIn {
    const char16_t* Name;
    const char16_t* Host;
    const char16_t* Kind;
    TRTTIClassKind ClassKind;
  };
  const TBuiltIn Expected[] = {{u"T", u"", u"Generic", rtti_undefined},
                               {u"_Undefined_", u"OCLUndefined", u"Class", rtti_undefined},
                               {u"_Untyped_", u"OCLUndefined", u"Class", rtti_undefined},
                               {u"Any", u"OCLAny", u"Class", rtti_class},
                               {u"Real", u"OCLReal", u"Class", rtti_real},
                               {u"String", u"OCLString", u"Class", rtti_string},
                               {u"Boolean", u"OCLBoolean", u"Class", rtti_boolean},
                               {u"Integer", u"OCLInteger", u"Class", rtti_integer},
                               {u"Collection(T)", u"OCLCollection", u"Class", rtti_class},
                               {u"Set(T)", u"OCLSet", u"Class", rtti_set},
                               {u"Bag(T)", u"OCLBag", u"Class", rtti_bag},
                               {u"Sequence(T)", u"OCLSequence", u"Class", rtti_sequence},
                               {u"Tuple", u"OCLTuple", u"Class", rtti_class}};
  ASSERT_EQ(Members->GetCount(), 13);
  for (int i = 0; i < 13; ++i) {
    auto C = DynCast<IRTTIClass>(Members->GetItems(i));
    ASSERT_TRUE(C);
    EXPECT_EQ(C->GetName(), Expected[i].Name);
    EXPECT_EQ(C->GetHostClassName(), Expected[i].Host);
    EXPECT_EQ(C->GetKind(), Expected[i].Kind);
    EXPECT_EQ(C->GetClassKind(), Expected[i].ClassKind) << ToUTF8(Expected[i].Name);
  }
  EXPECT_EQ(Globals->Get_Untyped()->GetName(), u"_Untyped_");
  EXPECT_EQ(Globals->Get_Undefined()->GetName(), u"_Undefined_");
  EXPECT_TRUE(Globals->Get_Tuple()->GetIsTuple());
  EXPECT_EQ(Globals->Get_Set()->GetAncestor(), Globals->Get_Collection());
  EXPECT_EQ(Globals->Get_Set()->GetElementType(), Globals->Get_T());
  EXPECT_FALSE(Globals->Get_Undefined()->GetAncestor());
  // A class made later takes its kind from its ancestor.
  EXPECT_EQ(Globals->MakeClass(u"Codes", Globals->Get_Set(), u"OCLSet")->GetClassKind(), rtti_set);
  EXPECT_EQ(Globals->MakeCollection(u"Notes", Globals->Get_Collection(), u"", Globals->Get_String())
                ->GetClassKind(),
            rtti_class);
}

TEST_F(GlobalsTest, LookupSearchesOneLevelSystemFirst) {
  EXPECT_EQ(Globals->Lookup<IRTTIClass>(u"Integer"), Globals->Get_Integer());
  EXPECT_EQ(Globals->Lookup<IRTTIPackage>(u"System"), Globals->Get_System());
  auto User = MakeRef<TRTTIPackage>(u"User");
  Globals->AddMember(User);
  User->AddMember(MakeRef<TRTTIClass>(u"String"));
  auto Patient = MakeRef<TRTTIClass>(u"Patient");
  User->AddMember(Patient);
  auto Nested = MakeRef<TRTTIPackage>(u"Nested");
  User->AddMember(Nested);
  Nested->AddMember(MakeRef<TRTTIClass>(u"Deep"));
  EXPECT_EQ(Globals->Lookup<IRTTIClass>(u"String"), Globals->Get_String());
  EXPECT_EQ(Globals->Lookup<IRTTIClass>(u"Patient"), Ref<IRTTIClass>(Patient));
  EXPECT_FALSE(Globals->Lookup<IRTTIClass>(u"Deep"));                      // one level only
  EXPECT_FALSE(Globals->Lookup(Patient->GetUML_ID(), IRTTIElement::IID));  // no UML id step
  EXPECT_EQ(Globals->FindClass(u"Deep")->GetName(), u"Deep");  // the package search goes deeper
  Ref<IRTTIPackage> Main = Globals->Get_Main();                // made once, and a member
  EXPECT_EQ(Globals->Get_Main(), Main);
  EXPECT_EQ(Globals->Lookup<IRTTIPackage>(u"Main"), Main);
}

TEST_F(GlobalsTest, BuildClassAndBuildCollectionMakePlaceholders) {
  EXPECT_FALSE(Globals->BuildClass(u""));
  EXPECT_EQ(Globals->BuildClass(u"Integer"), Globals->Get_Integer());
  Ref<IRTTIClass> Unknown = Globals->BuildClass(u"Unknown");
  EXPECT_FALSE(Globals->FindClass(u"Unknown"));  // added to no package
  EXPECT_NE(Globals->BuildClass(u"Unknown"), Unknown);
  Ref<IRTTIClass> SetOfInteger = Globals->BuildCollection(u"Set", u"Integer");
  EXPECT_EQ(SetOfInteger->GetName(), u"Set(Integer)");
  EXPECT_EQ(SetOfInteger->GetAncestor()->GetName(), u"Set");
  EXPECT_NE(SetOfInteger->GetAncestor(), Globals->Get_Set());
  EXPECT_EQ(SetOfInteger->GetElementType(), Globals->Get_Integer());
  EXPECT_NE(Globals->BuildCollection(u"Set", u"Integer"), SetOfInteger);  // nothing cached
}
