#include <gtest/gtest.h>

#include "../ocl/ExpectMessage.h"
#include "HostInterfaces.h"
#include "RegistryFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/registry/NativeInterface.h"

using namespace gello;

namespace {

struct NativeInterfaceTest : RegistryTest {
  Ref<IRTTIClass> PatientClass;
  Ref<TPatient> Host = MakeRef<TPatient>();
  Ref<TOCLNativeInterface> Value;

  void SetUp() override {
    RegistryTest::SetUp();
    TLogCapture Quiet;
    OCLRegistry().RegisterPackage(u"Clinic", {});
    OCLRegistry().RegisterHostInterface(u"Clinic::Address", TDescribed<IAddress>::Info, nullptr);
    PatientClass = OCLRegistry().RegisterHostInterface(u"Clinic::Patient",
                                                       TDescribed<IPatient>::Info, &TPatientClass);
    Value = MakeRef<TOCLNativeInterface>(PatientClass, Host);
  }
  const IRTTIProperty& Prop(const String& Name) {
    Ref<IRTTIProperty> Found = PatientClass->Find<IRTTIProperty>(Name);
    EXPECT_TRUE(Found) << ToUTF8(Name);
    return *Found;
  }
};

}  // namespace

TEST_F(NativeInterfaceTest, ReadsAndWritesEveryHostKind) {
  EXPECT_EQ(DynCast<IOCLInteger>(Value->GetProperty(Prop(u"Age")))->GetasInt64(), 40);
  Value->SetProperty(Prop(u"Age"), MakeRef<TOCLInteger>(41).get());
  EXPECT_EQ(Host->Age, 41);
  EXPECT_EQ(Value->GetProperty(Prop(u"Alive")), TOCLBoolean::BooleanValue(true));
  Value->SetProperty(Prop(u"Alive"), TOCLBoolean::BooleanValue(false).get());
  EXPECT_FALSE(Host->Alive);
  EXPECT_EQ(DynCast<IOCLReal>(Value->GetProperty(Prop(u"Weight")))->GetasExtended(), 72.5L);
  Value->SetProperty(Prop(u"Weight"), MakeRef<TOCLReal>(80.25L).get());
  EXPECT_EQ(Host->Weight, 80.25L);
  EXPECT_EQ(Value->GetProperty(Prop(u"Name"))->GetasString(), u"Ann");
  Value->SetProperty(Prop(u"Name"), MakeRef<TOCLString>(u"Bea").get());
  EXPECT_EQ(Host->Name, u"Bea");
  Host->Home = MakeRef<TCity>(u"Oslo");
  Ref<IOCLAny> Home = Value->GetProperty(Prop(u"Home"));
  EXPECT_EQ(Home->GetasString(), u"Address(Oslo)");
  EXPECT_EQ(Home->GetInstanceType()->GetName(), u"Address");
  auto Bergen = MakeRef<TOCLNativeInterface>(Home->GetInstanceType(), MakeRef<TCity>(u"Bergen"));
  Value->SetProperty(Prop(u"Home"), Bergen.get());
  EXPECT_EQ(Host->Home->GetCity(), u"Bergen");
  // An OCL-typed property exchanges the value object itself.
  auto Nick = MakeRef<TOCLString>(u"Annie");
  Value->SetProperty(Prop(u"Nickname"), Nick.get());
  EXPECT_EQ(Value->GetProperty(Prop(u"Nickname")).get(), static_cast<IOCLAny*>(Nick.get()));
  EXPECT_EQ(Value->GetasString(), u"Patient()");
  EXPECT_EQ(MakeRef<TOCLNativeInterface>(nullptr, Host)->GetasString(), u"[UnknownInterface]");
}

TEST_F(NativeInterfaceTest, RefusesValuesOfTheWrongInterface) {
  auto Seven = MakeRef<TOCLInteger>(7);
  ExpectMessage<EOCLException>([&] { Value->SetProperty(Prop(u"Nickname"), Seven.get()); },
                               u"incompatible type for Patient.Nickname := 7");
  ExpectMessage<EOCLException>(
      [&] { Value->SetProperty(Prop(u"Age"), MakeRef<TOCLString>(u"old").get()); },
      u"incompatible type for Patient.Age := old");
  ExpectMessage<EOCLException>([&] { Value->SetProperty(Prop(u"Home"), Seven.get()); },
                               u"incompatible type for Patient.Home := 7");
  EXPECT_EQ(Host->Age, 40);
  EXPECT_FALSE(Host->Nickname);
  // A class whose interface the wrapped object lacks.
  auto Stranger = MakeRef<TOCLNativeInterface>(PatientClass, MakeRef<TCity>(u"Rome"));
  ExpectMessage<EOCLException>(
      [&] { Stranger->GetProperty(Prop(u"Age")); },
      u"Internal OCL error: mismatching instance class and GUID for Patient");
}
