#include <gtest/gtest.h>

#include "../ocl/ExpectMessage.h"
#include "HostInterfaces.h"
#include "gello/foundation/Exceptions.h"
#include "gello/registry/IntfQueries.h"

using namespace gello;

namespace {

template <class I>
const TIntfInfo& Info() {
  return TDescribed<I>::Info;
}

// IOpaque declares 5 slots without details; IChild below it has one method and one property.
extern const TIntfInfo Opaque, Child;
const TIntfParam ChildParams[] = {{0, "Self", "IChild", &Child, hk_interface},
                                  {0, "Index", "Integer", nullptr, hk_integer}};
const TIntfEntry ChildEntries[] = {
    {{}, "first", mk_function, cc_stdcall, {ChildParams, 1}, "IOCLAny"},
    {{}, "Items", mk_function, cc_register, {ChildParams + 1, 1}, "IOCLAny"}};
const TIntfInfo Opaque{{"IOpaque", hc_interface},
                       GUIDLiteral("{11111111-2222-3333-4444-555555555555}"),
                       &Info<RefCounted>(),
                       5,
                       false,
                       {},
                       nullptr};
const TIntfInfo Child{{"IChild", hc_interface},
                      GUIDLiteral("{21111111-2222-3333-4444-555555555555}"),
                      &Opaque,
                      2,
                      true,
                      ChildEntries,
                      nullptr};
const TIntfInfo Broken{{"IBroken", hc_interface},
                       GUIDLiteral("{31111111-2222-3333-4444-555555555555}"),
                       &Info<RefCounted>(),
                       3,
                       true,
                       ChildEntries,
                       nullptr};

}  // namespace

TEST(IntfQueriesTest, IdentityAndAncestry) {
  EXPECT_EQ(GetIntfGUID(Info<IOCLInteger>()), IOCLInteger::IID);
  EXPECT_EQ(GetIntfParent(Info<IOCLInteger>()), &Info<IOCLReal>());
  EXPECT_EQ(GetIntfParent(Info<RefCounted>()), nullptr);
  EXPECT_TRUE(IntfHasAncestor(Info<IOCLInteger>(), Info<IOCLAny>()));
  EXPECT_TRUE(IntfHasAncestor(Info<IOCLAny>(), Info<RefCounted>()));
  EXPECT_FALSE(IntfHasAncestor(Info<IOCLAny>(), Info<IOCLAny>()));
  EXPECT_FALSE(IntfHasAncestor(Info<IOCLReal>(), Info<IOCLInteger>()));
  EXPECT_TRUE(IsOCLInterface(&Info<IOCLSet>()));
  EXPECT_FALSE(IsOCLInterface(&Info<IRTTIClassInstance>()));
}

TEST(IntfQueriesTest, SlotsCountAncestorsFromTheRootsThree) {
  EXPECT_EQ(GetIntfMethodCount(Info<RefCounted>()), 3);
  // Properties are listed but take no slot.
  EXPECT_EQ(GetIntfMethodCount(Info<IRTTIClassInstance>()), 19);
  EXPECT_EQ(GetIntfMethodCount(Info<IOCLCollection>()), 25);
  EXPECT_EQ(GetInterfaceIndex(Info<IRTTIClassInstance>(), u"CreateProperty"), 3);
  EXPECT_EQ(GetInterfaceIndex(Info<IOCLAny>(), u"allInstances"), 22);
  EXPECT_EQ(GetInterfaceIndex(Info<IOCLInteger>(), u"_ADD_"), 22 + 14 + 23 + 6);
  // Only the interface's own entries are searched; names are case-sensitive.
  EXPECT_EQ(GetInterfaceIndex(Info<IOCLInteger>(), u"ceiling"), -1);
  EXPECT_EQ(GetInterfaceIndex(Info<IOCLInteger>(), u"_add_"), -1);
  EXPECT_EQ(GetInterfaceIndex(Info<IOCLTuple>(), u"anything"), -1);
  // An interface without details answers -1 but its declared slots still count below it.
  EXPECT_EQ(GetInterfaceIndex(Opaque, u"first"), -1);
  EXPECT_EQ(GetInterfaceIndex(Child, u"first"), 8);
  EXPECT_EQ(GetIntfSlotEntry(Child, 8), &ChildEntries[0]);
  EXPECT_EQ(GetIntfSlotEntry(Child, 9), nullptr);
  EXPECT_EQ(GetIntfSlotEntry(Info<IOCLInteger>(), 22)->Name, std::string_view("allInstances"));
  try {
    GetIntfMethodCount(Broken);
    ADD_FAILURE() << "no assertion";
  } catch (const EAssertionFailed& Failure) {
    EXPECT_EQ(Failure.Text(), u"Assertion failure");
  }
}

TEST(IntfQueriesTest, PrintInterfaceListsAncestorsFirst) {
  std::vector<String> Lines;
  EXPECT_EQ(PrintInterface(Info<IAddress>(), Lines), 5);
  const std::vector<String> Expected = {u"IInterface :{00000000-0000-0000-C000-000000000046}",
                                        u"3 methods with no RTTI",
                                        u"IInvokable :" + IInvokable::IID.ToString(),
                                        u"IAddress :" + IAddress::IID.ToString(),
                                        u"3: 1 0; function GetCity(Self: IAddress): string",
                                        u"4: 0 0; procedure SetCity(Self: IAddress,Value: string)"};
  EXPECT_EQ(Lines, Expected);
  Lines.clear();
  EXPECT_EQ(PrintInterface(Info<IOCLCollection>(), Lines), 61);
  EXPECT_EQ(Lines.back(), u"61: 1 0; property Items[Index: Integer]: IOCLAny");
  EXPECT_EQ(Lines[Lines.size() - 5],
            u"57: 1 3; function _count_(Self: IOCLCollection,o: IOCLAny): IOCLInteger");
  Lines.clear();
  EXPECT_EQ(PrintInterface(Child, Lines), 9);
  EXPECT_EQ(Lines[5], u"8: 1 3; function first(Self: IChild): IOCLAny");
  ExpectMessage<Exception>([&] { PrintInterface(Broken, Lines); },
                           u"mistmatch of interface method count for IBroken");
}

TEST(IntfQueriesTest, CastsByInterface) {
  auto Patient = MakeRef<TPatient>();
  Ref<RefCounted> Target = MakeRef<TPatient>();
  IntfCast(Patient.get(), Info<IPatient>(), Target);
  EXPECT_EQ(Target.get(), static_cast<RefCounted*>(Patient.get()));
  IntfCast(Patient.get(), Info<IAddress>(), Target);
  EXPECT_FALSE(Target);
  Target = Patient;
  IntfCast(nullptr, Info<IPatient>(), Target);
  EXPECT_FALSE(Target);
  const IPatient* AsPatient = Patient.get();
  const IInvokable* AsInvokable = Patient.get();
  EXPECT_EQ(GetImplementingObject(AsPatient), GetImplementingObject(AsInvokable));
  EXPECT_EQ(GetImplementingObject(nullptr), nullptr);
}
