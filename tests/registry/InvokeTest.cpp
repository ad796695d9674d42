#include <gtest/gtest.h>

#include "../ocl/ExpectMessage.h"
#include "HostInterfaces.h"
#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Integer.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/Invoke.h"

using namespace gello;

namespace {

const TIntfInfo& Integer = TDescribed<IOCLInteger>::Info;
const TIntfInfo& Patient = TDescribed<IPatient>::Info;

TMethodInfo InfoOf(const TIntfInfo& Intf, const char16_t* Name) {
  const TIntfEntry* Entry = GetIntfSlotEntry(Intf, GetInterfaceIndex(Intf, Name));
  return TMethodInfo{Entry->Call, Name, Entry};
}

int Calls = 0;
Ref<IOCLAny> Counting(RefCounted*, std::span<IOCLAny* const>) {
  ++Calls;
  return nullptr;
}

}  // namespace

TEST(InvokeTest, ExecuteMethodChecksThenCallsTheSlot) {
  auto Two = MakeRef<TOCLInteger>(2), Three = MakeRef<TOCLInteger>(3);
  IOCLAny* One[] = {Three.get()};
  IOCLAny* Pair[] = {Three.get(), Three.get()};
  const TMethodInfo Add = InfoOf(Integer, u"_ADD_");
  EXPECT_EQ(DynCast<IOCLInteger>(ExecuteMethod(Two.get(), One, &Add))->GetasInt64(), 5);
  const int Before = Three->GetRefCount();
  ExpectMessage<Exception>([&] { ExecuteMethod(Two.get(), Pair, &Add); },
                           u"ExecuteIntfMethod: bad number of parameters for _ADD_");
  EXPECT_EQ(Three->GetRefCount(), Before);
  ExpectMessage<Exception>([&] { ExecuteMethod(Two.get(), One, nullptr); },
                           u"ExecuteIntfMethod: missing methodinfo");
  const TMethodInfo Internal = InfoOf(Integer, u"GetasInt64");
  ExpectMessage<Exception>([&] { ExecuteMethod(Two.get(), {}, &Internal); },
                           u"ExecuteIntfMethod: bad calling convention for method GetasInt64");
  // No extended description: nothing is called.
  const TMethodInfo Bare{&Counting, u"bare", nullptr};
  EXPECT_FALSE(ExecuteMethod(Two.get(), One, &Bare));
  EXPECT_EQ(Calls, 0);
  const TMethodInfo Negate = InfoOf(Integer, u"_NEGATE_");
  EXPECT_EQ(DynCast<IOCLInteger>(ExecuteMethod(Two.get(), {}, &Negate))->GetasInt64(), -2);
  EXPECT_EQ(Three->GetRefCount(), Before);
}

TEST(InvokeTest, IntfMethodHoldsItsArgumentsForTheCall) {
  auto Host = MakeRef<TPatient>();
  auto Years = MakeRef<TOCLInteger>(5);
  IOCLAny* Args[] = {Years.get()};
  const int Slot = GetInterfaceIndex(Patient, u"ageIn");
  EXPECT_EQ(Slot, 15);
  const int Before = Years->GetRefCount();
  Ref<IOCLAny> Result = Intf_Method_StdCall(Host.get(), Patient, Slot, Args);
  EXPECT_EQ(DynCast<IOCLInteger>(Result)->GetasInt64(), 45);
  EXPECT_EQ(Host->ArgRefsSeen, Before + 1);
  EXPECT_EQ(Years->GetRefCount(), Before);
  ExpectMessage<Exception>([&] { ExecuteIntfMethod(Patient, Years.get(), Args, Slot); },
                           u"ExecuteIntfMethod: object does not support IPatient");
  EXPECT_EQ(Years->GetRefCount(), Before);
  ExpectMessage<Exception>([&] { ExecuteIntfMethod(Patient, Host.get(), Args, 3); },
                           u"ExecuteIntfMethod: no script method in slot 3 of IPatient");
}

TEST(InvokeTest, PropertyThunksReadAndWriteEveryHostKind) {
  auto Host = MakeRef<TPatient>();
  RefCounted* Self = Host.get();
  EXPECT_EQ(Intf_GetPropInt_Register(Self, Patient, 3), 40);
  Intf_SetPropInt_Register(Self, Patient, 4, -7);
  EXPECT_EQ(Host->Age, -7);
  EXPECT_TRUE(Intf_GetPropBool_Register(Self, Patient, 5));
  Intf_SetPropBool_Register(Self, Patient, 6, false);
  EXPECT_FALSE(Host->Alive);
  EXPECT_EQ(Intf_GetPropReal_Register(Self, Patient, 7), 72.5L);
  Intf_SetPropReal_Register(Self, Patient, 8, 0.1L);
  EXPECT_EQ(Host->Weight, 0.1L);
  String Name;
  Intf_GetPropStr_Register(Self, Patient, 9, Name);
  EXPECT_EQ(Name, u"Ann");
  Intf_SetPropStr_Register(Self, Patient, 10, u"Bo");
  EXPECT_EQ(Host->Name, u"Bo");
  auto Oslo = MakeRef<TCity>(u"Oslo");
  Intf_SetPropIntf_Register(Self, Patient, 12, Oslo.get());
  Ref<RefCounted> Home;
  Intf_GetPropIntf_Register(Self, Patient, 11, Home);
  EXPECT_EQ(Home.get(), static_cast<RefCounted*>(Oslo.get()));
  auto Nick = MakeRef<TOCLString>(u"Annie");
  Intf_SetPropIntf_StdCall(Self, Patient, 14, Nick.get());
  EXPECT_EQ(Intf_GetPropIntf_StdCall(Self, Patient, 13).get(), static_cast<IOCLAny*>(Nick.get()));
  ExpectMessage<Exception>([&] { Intf_GetPropInt_Register(Self, Patient, 5); },
                           u"no integer getter in slot 5 of IPatient");
  ExpectMessage<Exception>([&] { Intf_SetPropStr_Register(Self, Patient, 9, u"x"); },
                           u"no string setter in slot 9 of IPatient");
}
