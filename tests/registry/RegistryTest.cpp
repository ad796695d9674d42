#include <gtest/gtest.h>

#include <cstdlib>
#include "../ocl/ExpectMessage.h"
#include "HostInterfaces.h"
#include "RegistryFixture.h"
#include "gello/foundation/Exceptions.h"
#include "gello/model/Property.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/registry/RegisteredMethod.h"

using namespace gello;

namespace {

template <class I>
const TIntfInfo& Info() {
  return TDescribed<I>::Info;
}

Ref<IRTTIElementList> MethodsNamed(const Ref<IRTTIClass>& Class, const String& Name) {
  return Class->FindAll(Name, IRTTIMethod::IID);
}

}  // namespace

TEST(RegistryLifeTest, RegistryExistsOnlyBetweenStartAndFinalize) {
  ExpectMessage<Exception>([] { OCLRegistry(); },
                           u"Internal Error: OCL Registry has not been initialized.");
  RegisterInterfaces();
  EXPECT_TRUE(OCLSystemClasses().Integer);
  {
    TLogCapture Log;
    FinalizeOCLRegistry();
    EXPECT_EQ(Log.Lines().front(), u"OCL Registry");
    EXPECT_EQ(Log.Count(u"Registered GELLO class "), 12u);
  }
  EXPECT_FALSE(OCLSystemClasses().Integer);
  ExpectMessage<Exception>([] { OCLRegistry(); },
                           u"Internal Error: OCL Registry has not been initialized.");
  // A registry still alive at process end is dumped to the log.
  EXPECT_EXIT(
      {
        RegisterInterfaces();
        std::exit(0);
      },
      testing::ExitedWithCode(0), "Registered GELLO class Integer extends Real");
}

TEST_F(RegistryTest, StartUpRegistersTheTwelveSystemClasses) {
  TOCLClassRegistry& Registry = OCLRegistry();
  EXPECT_EQ(Registry.GetCount(), 12);
  const TOCLSystemClasses& System = OCLSystemClasses();
  EXPECT_EQ(System.Integer, Registry.FindOCLClass(u"System::Integer"));
  EXPECT_EQ(System.Integer, Registry.GetGlobals()->Get_Integer());
  EXPECT_EQ(System.Integer->GetInstanceIntf(), IOCLInteger::IID);
  EXPECT_EQ(System.Integer->GetHostType(), &Info<IOCLInteger>());
  EXPECT_EQ(System.Integer->GetAncestor(), System.Real);
  EXPECT_EQ(System.Integer->GetInstanceImpl()->Name, std::string_view("TOCLInteger"));
  EXPECT_EQ(Registry.FindHostClass(u"TOCLBag"), System.Bag);
  EXPECT_EQ(System.Bag->GetAncestor(), System.Collection);
  EXPECT_EQ(System.Collection->GetImmediateElementType(), System.Any);
  EXPECT_EQ(System.T->GetAncestor(), System.Any);
  EXPECT_EQ(System.Iterator, Registry.GetGlobals()->Get_System()->Find<IRTTIClass>(u"Iterator"));
  EXPECT_EQ(System.Iterator->GetAncestor(), System.Any);
  EXPECT_EQ(MakeRef<TOCLInteger>(1)->GetInstanceType(), System.Integer);
  EXPECT_EQ(TOCLBoolean::BooleanValue(rtti_unknown)->GetInstanceType(), System.Boolean);
  EXPECT_TRUE(TOCLBoolean::UndefinedBoolean()->GetunDefined());
}

TEST_F(RegistryTest, MethodsAreScriptOperationsUnderGelloNames) {
  const TOCLSystemClasses& System = OCLSystemClasses();
  Ref<IRTTIElementList> Minus = MethodsNamed(System.Integer, u"-");
  ASSERT_EQ(Minus->GetCount(), 2);
  auto Negate = DynCast<IRTTIMethod>(Minus->GetItems(0));
  auto Subtract = DynCast<IRTTIMethod>(Minus->GetItems(1));
  EXPECT_EQ(Negate->GetParams()->GetCount(), 0);
  EXPECT_EQ(Negate->GetResultType(), System.Integer);
  EXPECT_EQ(Subtract->GetVmtIndex(), 59 + 11);
  auto Rhs = DynCast<IRTTIProperty>(Subtract->GetParams()->GetItems(0));
  EXPECT_EQ(Rhs->GetName(), u"rhs");
  EXPECT_EQ(Rhs->GetPropertyType(), System.Integer);
  EXPECT_EQ(GetMethodInfo(Subtract.get())->Name, u"_SUBTRACT_");
  EXPECT_EQ(MethodsNamed(System.Integer, u"abs")->GetCount(), 1);
  EXPECT_EQ(MethodsNamed(System.Integer, u"GetasInt64")->GetCount(), 0);
  EXPECT_EQ(MethodsNamed(System.Any, u"Display")->GetCount(), 0);
  auto All = System.Any->Find<IRTTIMethod>(u"allInstances");
  EXPECT_EQ(All->GetResultType(), System.Set);
  auto Exists = System.Collection->Find<IRTTIMethod>(u"exists");
  EXPECT_TRUE(Exists->GetCollectionOp());
  EXPECT_FALSE(System.Collection->Find<IRTTIMethod>(u"includes")->GetCollectionOp());
  EXPECT_TRUE(System.Collection->Find<IRTTIMethod>(u"count"));
  EXPECT_EQ(MethodsNamed(System.Set, u"union")->GetCount(), 2);
  EXPECT_TRUE(System.Boolean->Find<IRTTIMethod>(u"implies"));
  EXPECT_TRUE(System.Boolean->Find<IRTTIMethod>(u"not"));
  EXPECT_TRUE(System.String->Find<IRTTIMethod>(u"<>"));
}

TEST_F(RegistryTest, AddIntfFindsOrMakesTheClass) {
  TOCLClassRegistry& Registry = OCLRegistry();
  const TIntfInfo& Address = Info<IAddress>();
  ExpectMessage<Exception>([&] { Registry.AddIntf(u"Lib::Address", Address); },
                           u"package Lib must be registered first.");
  EXPECT_EQ(Registry.GetCount(), 12);
  TLogCapture Log;
  Ref<IRTTIClass> Anonymous = Registry.AddIntf(u"", Address);
  EXPECT_EQ(Log.Lines().back(),
            u"Registering anonymous class for interface IAddress " + IAddress::IID.ToString());
  EXPECT_EQ(Registry.AddIntf(u"", Address), Anonymous);
  ExpectMessage<Exception>([&] { Registry.AddIntf(u"Any", Address); },
                           u"Class Name in OCL Registry must specify package Name (Any)");
  Ref<IRTTIPackage> Lib = Registry.RegisterPackage(u"Lib", {});
  EXPECT_EQ(Registry.AddIntf(u"Lib::Address", Address), Anonymous);
  EXPECT_EQ(Anonymous->GetName(), u"Address");
  EXPECT_EQ(Lib->Find<IRTTIClass>(u"Address"), Anonymous);
  ExpectMessage<Exception>([&] { Registry.AddClass1(u"Plain"); },
                           u"Class Name in OCL Registry must specify package Name (Plain)");
  Ref<IRTTIClass> Plain = Registry.AddClass1(u"Lib::Plain");
  EXPECT_EQ(Lib->Find<IRTTIClass>(u"Plain"), Plain);
  // Lookups.
  EXPECT_EQ(Registry.FindClassByGUID(IAddress::IID), Anonymous);
  EXPECT_EQ(Registry.FindRegisteredType(Address), Anonymous);
  EXPECT_EQ(&Registry.GetItemByClass(Anonymous.get())->GetIntf(), &Address);
  EXPECT_EQ(Registry.FindInterfaceNameByGUID(IOCLSet::IID), u"IOCLSet");
  EXPECT_EQ(Registry.FindInterfaceNameByGUID(IPatient::IID), u"<unknown>");
  EXPECT_EQ(Registry.FindInterfaceTypeByName(u"IOCLBag"), &Info<IOCLBag>());
  EXPECT_EQ(Registry.FindOCLClass(u"Lib::Address"), Anonymous);
  EXPECT_EQ(Registry.FindOCLClass(u"System::Address"), nullptr);
  EXPECT_EQ(Registry.FindOCLClass(u"Integer"), OCLSystemClasses().Integer);
}

TEST_F(RegistryTest, HostInterfacesBecomeNativeClasses) {
  TOCLClassRegistry& Registry = OCLRegistry();
  Registry.RegisterPackage(u"Clinic", {});
  TLogCapture Log;
  Ref<IRTTIClass> Patient =
      Registry.RegisterHostInterface(u"Clinic::Patient", Info<IPatient>(), &TPatientClass);
  EXPECT_EQ(Log.Lines()[0],
            u"register Clinic::Patient Interface name = IPatient Class name = "
            u"TPatient GUID=" +
                IPatient::IID.ToString());
  EXPECT_EQ(Log.Lines()[1], u"Interface List for IPatient");
  EXPECT_EQ(Log.Lines()[6], u"3: 1 0; function GetAge(Self: IPatient): Integer");
  EXPECT_TRUE(Registry.GetItemByClass(Patient.get())->GetNative());
  auto Age = Patient->Find<IRTTIProperty>(u"Age");
  EXPECT_EQ(Age->GetPropertyType(), OCLSystemClasses().Integer);
  EXPECT_EQ(Age->GetGetterVMTIndex(), 3);
  EXPECT_EQ(Age->GetSetterVMTIndex(), 4);
  EXPECT_FALSE(Age->GetReadOnly());
  EXPECT_EQ(Patient->Find<IRTTIProperty>(u"Nickname")->GetPropertyType(),
            OCLSystemClasses().String);
  auto AgeIn = Patient->Find<IRTTIMethod>(u"ageIn");
  EXPECT_EQ(AgeIn->GetVmtIndex(), 15);
  auto Place =
      DynCast<IRTTIProperty>(Patient->Find<IRTTIMethod>(u"livesIn")->GetParams()->GetItems(0));
  EXPECT_EQ(Place->GetPropertyType(), Registry.FindRegisteredType(Info<IAddress>()));
  EXPECT_FALSE(Patient->Find<IRTTIMethod>(u"GetAge"));
  const int Count = Registry.GetCount();
  ExpectMessage<Exception>(
      [&] { Registry.RegisterHostInterface(u"Clinic::Any", Info<IOCLAny>(), nullptr); },
      u"IOCLAny must derive from IInvokable");
  ExpectMessage<Exception>(
      [&] { Registry.RegisterHostInterface(u"Clinic::OddCall", Info<IOddCall>(), nullptr); },
      u"bad calling convention for method OddCall.count");
  ExpectMessage<Exception>(
      [&] { Registry.RegisterHostInterface(u"Clinic::OddResult", Info<IOddResult>(), nullptr); },
      u"Bad Return type for RTTI OddResult:home");
  ExpectMessage<Exception>(
      [&] { Registry.RegisterHostInterface(u"Clinic::Odd", Info<IOddProperty>(), nullptr); },
      u"host type given twice for property Odd.X");
  EXPECT_EQ(Registry.GetCount(), Count);
}

TEST_F(RegistryTest, BuildMethodsSkipsAccessorsAndTranslatesOperators) {
  TOCLClassRegistry& Registry = OCLRegistry();
  Registry.RegisterPackage(u"Lib", {});
  Ref<IRTTIClass> Record = Registry.AddClass1(u"Lib::Record");
  Record->AddMember(MakeRef<TRTTIProperty>(u"Size", OCLSystemClasses().Integer));
  Registry.Debug = 1;
  TLogCapture Log;
  Registry.RegisterRTTIClass(Record, Info<IRecord>());
  EXPECT_FALSE(Record->Find<IRTTIMethod>(u"GetSize"));
  EXPECT_TRUE(Record->Find<IRTTIMethod>(u"GetTotal"));
  EXPECT_EQ(Record->Find<IRTTIMethod>(u"-")->GetParams()->GetCount(), 0);
  EXPECT_FALSE(Record->Find<IRTTIMethod>(u"reset"));
  EXPECT_FALSE(Record->Find<IRTTIMethod>(u"where"));
  EXPECT_EQ(Log.Lines(), (std::vector<String>{u"method Record.GetTotal: (): Integer stdcall",
                                              u"method Record.=: (o: Any): Boolean stdcall",
                                              u"method Record.-: (): Integer stdcall"}));
  ExpectMessage<Exception>([&] { Registry.BuildMethods(Record, Info<IOddCall>()); },
                           u"bad calling convention for method Record.count");
}

TEST_F(RegistryTest, PackagesCountTheirImporters) {
  TOCLClassRegistry& Registry = OCLRegistry();
  TLogCapture Log;
  Ref<IRTTIPackage> Lib = Registry.RegisterPackage(u"Lib", {u"System"});
  Ref<IRTTIPackage> App = Registry.RegisterPackage(u"App", {u"Lib"});
  EXPECT_EQ(Registry.RegisterPackage(u"App", {}), App);
  EXPECT_EQ(Lib->GetUseCount(), 1);
  EXPECT_EQ(App->GetImports()->GetItems(0), Lib);
  ExpectMessage<Exception>([&] { Registry.RegisterPackage(u"Bad", {u"Nope"}); },
                           u"import package not found : Nope");
  EXPECT_FALSE(Registry.GetPackage(u"Bad"));
  ExpectMessage<Exception>([&] { UnregisterInterfaces(); },
                           u"unable to unregister package System because it's usecount is > 0");
  Registry.RegisterHostInterface(u"Lib::Address", Info<IAddress>(), nullptr);
  Log.Clear();
  Registry.UnregisterPackage(u"Nope");
  EXPECT_EQ(Log.Lines(),
            (std::vector<String>{u"Unregistering package Nope", u"package Nope not found."}));
  Registry.UnregisterPackage(u"App");
  EXPECT_EQ(Lib->GetUseCount(), 0);
  Registry.UnregisterPackage(u"Lib");
  EXPECT_FALSE(Registry.FindRegisteredType(Info<IAddress>()));
  EXPECT_FALSE(Registry.GetPackage(u"Lib"));
  Registry.RegisterPackage(u"Lib", {u"System"});
  Registry.Debug = 1;
  Log.Clear();
  UnregisterAllInterfaces();
  EXPECT_EQ(Registry.GetCount(), 0);
  EXPECT_EQ(Log.Lines()[0], u"Unregistering package Lib");
  EXPECT_EQ(Log.Lines().back(), u"OCL Registry");
}

TEST_F(RegistryTest, DumpAndCast) {
  TOCLClassRegistry& Registry = OCLRegistry();
  TLogCapture Log;
  Registry.AddIntf(u"", Info<IAddress>());
  Log.Clear();
  Registry.Dump(false);
  EXPECT_EQ(Log.Lines()[0], u"OCL Registry");
  EXPECT_EQ(Log.Lines()[1], u"Registered GELLO class Any host type = IOCLAny");
  EXPECT_EQ(Log.Lines()[8],
            u"Registered GELLO class Collection(T) extends Any elementtype=Any "
            u"host type = IOCLCollection");
  EXPECT_EQ(Log.Lines().back(), u"Registered GELLO class <null> host type = IAddress");
  Log.Clear();
  Registry.Dump(true);
  EXPECT_EQ(Log.Count(u"  65: +(rhs: Integer): Integer stdcall"), 1u);
  Log.Clear();
  Registry.DumpInterface(*OCLSystemClasses().Integer);
  EXPECT_EQ(Log.Lines()[0], u"Interface List for Integer");
  EXPECT_EQ(Log.Lines().back(),
            u"70: 1 3; function _SUBTRACT_(Self: IOCLInteger,rhs: IOCLInteger): IOCLInteger");
  auto Two = MakeRef<TOCLInteger>(2);
  Ref<RefCounted> Target;
  OCLCast(Two.get(), IOCLReal::IID, Target);
  EXPECT_EQ(Target.get(), Two->GetasObject());
  OCLCast(Two.get(), IOCLString::IID, Target);
  EXPECT_FALSE(Target);
  OCLCast(Two.get(), IPatient::IID, Target);
  EXPECT_FALSE(Target);
}
