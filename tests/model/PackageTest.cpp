#include "gello/model/Package.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>
#include <vector>

#include "MadeClasses.h"
#include "gello/foundation/Log.h"
#include "gello/model/Class.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"
#include "gello/model/Globals.h"
#include "gello/model/Method.h"
#include "gello/model/MethodTimer.h"
#include "gello/model/PackageList.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

struct PackageTest : testing::Test {
  Ref<TRTTIGlobals> Globals = MakeRef<TRTTIGlobals>();
  Ref<TRTTIPackage> Package = MakeRef<TRTTIPackage>(u"Clinic");
  void SetUp() override { Globals->AddMember(Package); }
  void TearDown() override { Globals->Clear(); }
  Ref<IRTTIClass> AddClass(IRTTIPackage& Into, const String& Name) {
    auto C = MakeRef<TRTTIClass>(Name);
    Into.AddMember(C);
    return C;
  }
};

}  // namespace

TEST_F(PackageTest, UseCountIsGuardedAndAtomic) {
  Package->Use();
  Package->Unuse();
  EXPECT_EQ(ErrorMessage([&] { Package->Unuse(); }),
            u"RTTI error - trying to unuse package when use count is 0 Clinic");
  EXPECT_EQ(Package->GetUseCount(), 0);
  std::vector<std::thread> Threads;
  for (int t = 0; t < 4; ++t)
    Threads.emplace_back([this] {
      for (int i = 0; i < 10000; ++i)
        Package->Use();
      for (int i = 0; i < 9000; ++i)
        Package->Unuse();
    });
  for (auto& Thread : Threads)
    Thread.join();
  EXPECT_EQ(Package->GetUseCount(), 4000);
}

TEST_F(PackageTest, FindClassSearchesNestedPackagesButNotImports) {
  auto Nested = MakeRef<TRTTIPackage>(u"Inner");
  Package->AddMember(Nested);
  auto Deep = AddClass(*Nested, u"Deep");
  auto Own = AddClass(*Package, u"Own");
  auto Imported = MakeRef<TRTTIPackage>(u"Lib");
  auto Hidden = AddClass(*Imported, u"Hidden");
  Package->SetImports(
      MakeRef<TRTTIElementList>(std::initializer_list<Ref<IRTTIElement>>{Imported}));
  EXPECT_EQ(Package->FindClass(u"Own"), Own);
  EXPECT_EQ(Package->FindClass(u"Deep"), Deep);
  EXPECT_FALSE(Package->FindClass(u"Hidden"));
  EXPECT_FALSE(Package->FindClass(u"Inner"));  // a package is not a class
  Imported->Clear();
}

TEST_F(PackageTest, FindAddClassHandlesQualifiedGenericEmptyAndForwardNames) {
  auto Other = MakeRef<TRTTIPackage>(u"Other");
  Globals->AddMember(Other);
  auto A = AddClass(*Other, u"A");
  const int Before = Package->GetMembers()->GetCount();
  EXPECT_EQ(Package->FindAddClass(u"Other::A", Globals.get()), A);
  EXPECT_FALSE(Package->FindAddClass(u"Other::Missing", Globals.get()));
  EXPECT_FALSE(Package->FindAddClass(u"Nowhere::A", Globals.get()));
  EXPECT_FALSE(Package->FindAddClass(u"Other::A", nullptr));
  Ref<IRTTIClass> Tuple1 = Package->FindAddClass(u"", Globals.get());
  Ref<IRTTIClass> Tuple2 = Package->FindAddClass(u"", nullptr);
  EXPECT_EQ(Tuple1->GetName(), u"Tuple");
  EXPECT_NE(Tuple1, Tuple2);
  EXPECT_EQ(Package->GetMembers()->GetCount(), Before);
  // Built-in and other packages' classes are found, not copied.
  EXPECT_EQ(Package->FindAddClass(u"Integer", Globals.get()), Globals->Get_Integer());
  EXPECT_EQ(Package->FindAddClass(u"A", Globals.get()), A);
  EXPECT_EQ(Package->GetMembers()->GetCount(), Before);
  // Generic and forward names become placeholders of this package, once.
  Ref<IRTTIClass> SetOfA = Package->FindAddClass(u"Set(Other::A)", Globals.get());
  EXPECT_EQ(SetOfA->GetName(), u"Set(Other::A)");
  EXPECT_EQ(Package->FindAddClass(u"Set(Other::A)", Globals.get()), SetOfA);
  Ref<IRTTIClass> Later = Package->FindAddClass(u"Later", nullptr);
  EXPECT_EQ(Package->FindClass(u"Later"), Later);
  EXPECT_EQ(Package->GetMembers()->GetCount(), Before + 2);
  Tuple1->Clear();
  Tuple2->Clear();
}

TEST_F(PackageTest, ResolveReachesTheMembersAndTimesItself) {
  auto Patient = AddClass(*Package, u"Patient");
  auto Alias = MakeRef<TRTTIClassAlias>(u"Person", BuildClassRef(u"Patient"));
  Package->AddMember(Alias);
  TLogCapture Log;
  Package->Resolve(Globals.get());
  EXPECT_EQ(Alias->GetActualClass(), Patient);
  EXPECT_TRUE(Package->GetResolved());
  ASSERT_GE(Log.Lines().size(), 2u);
  EXPECT_EQ(Log.Lines().front(), u"About to time this operation: resolve package Clinic");
  EXPECT_EQ(Log.Lines().back().rfind(u"resolve package Clinic took ", 0), 0u);
}

TEST_F(PackageTest, BuildFactoryMakesOneConstructorPerConcreteClass) {
  auto Base = AddClass(*Package, u"Base");
  Base->AddMember(MakeRef<TRTTIProperty>(u"id", Globals->Get_String()));
  auto Sub = MakeRef<TRTTIClass>(u"Sub", Base);
  Sub->AddMember(MakeRef<TRTTIProperty>(u"x", Globals->Get_Integer()));
  Sub->AddMember(MakeRef<TRTTIMethod>(u"m", Globals->Get_Integer()));
  Sub->AddMember(MakeRef<TRTTIProperty>(u"y", Globals->Get_Real()));
  Package->AddMember(Sub);
  AddClass(*Package, u"Set(Base)");
  auto Colour = AddClass(*Package, u"Colour");
  Colour->SetEnums(MakeRef<TRTTIElementList>());
  Package->AddMember(MakeRef<TRTTIClassAlias>(u"Alias", Base));
  Package->BuildFactory();
  Ref<IRTTIClass> Factory = Package->FindClass(u"Factory");
  ASSERT_TRUE(Factory);
  ASSERT_EQ(Factory->GetMembers()->GetCount(), 2);
  auto Make = DynCast<IRTTIMethod>(Factory->GetMembers()->GetItems(1));
  EXPECT_EQ(Make->GetName(), u"Sub");
  EXPECT_EQ(Make->GetResultType(), Ref<IRTTIClass>(Sub));
  Ref<IRTTIElementList> Params = Make->GetParams();
  ASSERT_EQ(Names(*Params), (std::vector<String>{u"x", u"y", u"ancestor"}));
  EXPECT_EQ(DynCast<IRTTIProperty>(Params->GetItems(2))->GetPropertyType(), Base);
  EXPECT_NE(Params->GetItems(0), Sub->GetMembers()->GetItems(0));  // its own parameters
  const int Count = Package->GetMembers()->GetCount();
  Package->BuildFactory();
  EXPECT_EQ(Package->GetMembers()->GetCount(), Count);
  EXPECT_NE(Package->FindClass(u"Factory"), Factory);
}

TEST_F(PackageTest, PackageListFindsPackagesWithoutOwningThem) {
  auto List = MakeRef<TRTTIPackageList>();
  List->AddMember(Package);
  List->AddMember(MakeRef<TRTTIClass>(u"NotAPackage"));
  EXPECT_EQ(List->FindPackage(u"Clinic"), Ref<IRTTIPackage>(Package));
  EXPECT_FALSE(List->FindPackage(u"NotAPackage"));
  auto Kept = AddClass(*Package, u"Kept");
  List->Clear();
  EXPECT_EQ(List->GetMembers()->GetCount(), 0);
  EXPECT_EQ(Package->FindClass(u"Kept"), Kept);
}

TEST(MethodTimer, LogsStartAndEndOnRelease) {
  TLogCapture Log;
  {
    Ref<TMethodTimer> Timer = MethodTimer(u"work");
    ASSERT_EQ(Log.Lines().size(), 1u);
    EXPECT_EQ(Log.Lines()[0], u"About to time this operation: work");
  }
  ASSERT_EQ(Log.Lines().size(), 2u);
  EXPECT_EQ(Log.Lines()[1], u"work took 0 secs");
  // A timer keeps the setting it started with, so its lines come in pairs.
  Ref<TMethodTimer> Started = MethodTimer(u"started");
  SetMethodTimersLogged(false);
  MethodTimer(u"quiet");
  Started = nullptr;
  SetMethodTimersLogged(true);
  EXPECT_EQ(Log.Lines().size(), 4u);
  EXPECT_EQ(Log.Count(u"quiet"), 0u);
}
