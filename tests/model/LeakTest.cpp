// Clearing a package must break every reference cycle a model has: the test counts the live
// elements, and the sanitizer build's leak checker watches everything else.
#include <gtest/gtest.h>

#include "gello/expr/Literals.h"
#include "gello/foundation/Log.h"
#include "gello/model/Class.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"
#include "gello/model/Globals.h"
#include "gello/model/Method.h"
#include "gello/model/Property.h"

using namespace gello;

namespace {

int Alive = 0;

// A class that counts its live instances.
class TCountedClass : public TRTTIClass {
 public:
  explicit TCountedClass(const String& Name) : TRTTIClass(Name) { ++Alive; }
  ~TCountedClass() override { --Alive; }
};

class TCountedProperty : public TRTTIProperty {
 public:
  TCountedProperty(const String& Name, const Ref<IRTTIClass>& Type) : TRTTIProperty(Name, Type) {
    ++Alive;
  }
  ~TCountedProperty() override { --Alive; }
};

// A package of the global scope whose classes refer to one another and to themselves in every
// way a model can.
Ref<IRTTIPackage> CyclicPackage(TRTTIGlobals& Globals, const String& Name) {
  auto Package = MakeRef<TRTTIPackage>(Name);
  Globals.AddMember(Package);
  auto Patient = MakeRef<TCountedClass>(u"Patient");
  auto Visit = MakeRef<TCountedClass>(u"Visit");
  Package->AddMember(Patient);
  Package->AddMember(Visit);
  Patient->AddMember(MakeRef<TCountedProperty>(u"self", BuildClassRef(u"Patient")));
  Patient->AddMember(MakeRef<TCountedProperty>(u"visits", BuildClassRef(u"Visit")));
  Visit->SetAncestor(BuildClassRef(u"Patient"));
  Visit->AddMember(MakeRef<TCountedProperty>(u"patient", BuildClassRef(u"Patient")));
  auto Params = MakeRef<TRTTIElementList>();
  Params->Add(MakeRef<TCountedProperty>(u"other", BuildClassRef(u"Visit")));
  auto Method = MakeRef<TRTTIMethod>(u"follows", BuildClassRef(u"Boolean"), Params);
  Method->SetResultValue(MakeRef<TRTTIBooleanLiteral>(Globals.Get_Boolean(), true));
  Visit->AddMember(Method);
  auto Status = MakeRef<TCountedClass>(u"Status");
  Status->SetAncestor(Globals.Get_String());
  Status->SetEnums(MakeRef<TRTTIElementList>(
      std::initializer_list<Ref<IRTTIElement>>{MakeRef<TRTTIEnumLiteral>(u"open", Status, 0),
                                               MakeRef<TRTTIEnumLiteral>(u"closed", Status, 1)}));
  Package->AddMember(Status);
  Package->AddMember(MakeRef<TRTTIClassAlias>(u"Person", BuildClassRef(u"Patient")));
  Package->FindAddClass(u"Set(Visit)", &Globals);
  Package->SetMainBlock(MakeRef<TRTTIValue>(Patient));
  Package->BuildFactory();
  return Package;
}

}  // namespace

TEST(Leaks, ClearingAPackageOrReleasingTheScopeFreesEveryCycle) {
  TLogCapture Quiet;
  {
    auto Globals = MakeRef<TRTTIGlobals>();
    CyclicPackage(*Globals, u"Clinic")->Resolve(Globals.get());
    ASSERT_EQ(Alive, 7);
  }  // the last reference to the global scope clears it
  EXPECT_EQ(Alive, 0);
  auto Globals = MakeRef<TRTTIGlobals>();
  Ref<IRTTIPackage> First = CyclicPackage(*Globals, u"First");
  Ref<IRTTIPackage> Second = CyclicPackage(*Globals, u"Second");
  First->Resolve(Globals.get());
  Ref<IRTTIClass> Patient = First->FindClass(u"Patient");
  ASSERT_EQ(Patient->Lookup<IRTTIProperty>(u"self")->GetPropertyType(), Patient);  // a cycle
  Patient = nullptr;
  EXPECT_EQ(Alive, 14);  // still held by the global scope
  First->Clear();
  EXPECT_EQ(Alive, 7);
  EXPECT_TRUE(Second->FindClass(u"Patient")->Lookup<IRTTIProperty>(u"self")->GetPropertyType());
  Globals->Clear();
  EXPECT_EQ(Alive, 0);
}
