#include <gtest/gtest.h>

#include <typeinfo>

#include "HostInterfaces.h"
#include "RegistryFixture.h"
#include "gello/model/Class.h"
#include "gello/ocl/Collection.h"
#include "gello/ocl/Set.h"
#include "gello/ocl/String.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/ocl/Tuple.h"
#include "gello/registry/Registry.h"

using namespace gello;

namespace {

// What a plug-in's own implementing class would make.
Ref<IOCLAny> MakePatientValue(const Ref<IRTTIClass>& Class) {
  auto Value = MakeRef<TOCLString>(u"made by the plug-in");
  Value->SetInstanceType(Class);
  return Value;
}

constexpr THostClassInfo PluginPatientClass{"TPluginPatient", hc_class, &MakePatientValue};

}  // namespace

TEST_F(RegistryTest, ValuesOfRegisteredClassesAreMadeByTheirImplementingClass) {
  const TOCLSystemClasses& System = OCLSystemClasses();
  Ref<IOCLAny> Any = TOCLAny::CreateFromClass(System.Any);
  EXPECT_EQ(typeid(*Any), typeid(TOCLAny));
  EXPECT_NE(Any->GetasString(), u"<Any>");
  Ref<IOCLAny> Collection = TOCLAny::CreateFromClass(System.Collection);
  EXPECT_TRUE(DynCast<IOCLCollection>(Collection));
  EXPECT_EQ(typeid(*TOCLAny::CreateFromClass(System.Set)), typeid(TOCLSet));
  EXPECT_EQ(typeid(*TOCLAny::CreateFromClass(System.Tuple)), typeid(TOCLTuple));

  // A model class inherits its registered ancestor's binding, and stays a tuple.
  auto Visit = MakeRef<TRTTIClass>(u"Visit", System.Any, nullptr);
  EXPECT_EQ(typeid(*TOCLAny::CreateFromClass(Visit)), typeid(TOCLTuple));

  TOCLClassRegistry& Registry = OCLRegistry();
  Registry.RegisterPackage(u"Clinic", {});
  Ref<IRTTIClass> Patient = Registry.RegisterHostInterface(
      u"Clinic::Patient", TDescribed<IPatient>::Info, &PluginPatientClass);
  Patient->SetClassKind(rtti_class);  // modelled as an ordinary class
  EXPECT_EQ(TOCLAny::CreateFromClass(Patient)->GetasString(), u"made by the plug-in");
}
