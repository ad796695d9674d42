#include "HostInterfaces.h"

#include "gello/ocl/Boolean.h"
#include "gello/ocl/Integer.h"

namespace gello {

namespace {

constexpr TIntfEntry AddressEntries[] = {
    Internal<IAddress, &IAddress::GetCity, "GetCity">,
    Internal<IAddress, &IAddress::SetCity, "SetCity", "Value">};

using P = IPatient;
constexpr TIntfEntry PatientEntries[] = {Internal<P, &P::GetAge, "GetAge">,
                                         Internal<P, &P::SetAge, "SetAge", "Value">,
                                         Internal<P, &P::GetAlive, "GetAlive">,
                                         Internal<P, &P::SetAlive, "SetAlive", "Value">,
                                         Internal<P, &P::GetWeight, "GetWeight">,
                                         Internal<P, &P::SetWeight, "SetWeight", "Value">,
                                         Internal<P, &P::GetName, "GetName">,
                                         Internal<P, &P::SetName, "SetName", "Value">,
                                         Internal<P, &P::GetHome, "GetHome">,
                                         Internal<P, &P::SetHome, "SetHome", "Value">,
                                         Internal<P, &P::GetNickname, "GetNickname">,
                                         Internal<P, &P::SetNickname, "SetNickname", "Value">,
                                         Script<P, &P::ageIn, "ageIn", "years">,
                                         Script<P, &P::livesIn, "livesIn", "place">};

constexpr TIntfEntry OddCallEntries[] = {Method<IOddCall, &IOddCall::count, cc_cdecl, "count">};
constexpr TIntfEntry OddResultEntries[] = {Script<IOddResult, &IOddResult::home, "home">};
constexpr TIntfEntry OddPropertyEntries[] = {
    Internal<IOddProperty, &IOddProperty::GetX, "GetX">,
    Internal<IOddProperty, &IOddProperty::SetX, "SetX", "Value">};
constexpr TIntfEntry RecordEntries[] = {
    Script<IRecord, &IRecord::GetSize, "GetSize">, Script<IRecord, &IRecord::GetTotal, "GetTotal">,
    Script<IRecord, &IRecord::_EQ_, "_EQ_", "o">,  Script<IRecord, &IRecord::_NEGATE_, "_NEGATE_">,
    Script<IRecord, &IRecord::reset, "reset">,     Script<IRecord, &IRecord::where, "where">};

}  // namespace

const TIntfInfo TDescribed<IOddCall>::Info = DescribeIntf<IOddCall, IInvokable>(OddCallEntries);
const TIntfInfo TDescribed<IOddResult>::Info =
    DescribeIntf<IOddResult, IInvokable>(OddResultEntries);
const TIntfInfo TDescribed<IOddProperty>::Info =
    DescribeIntf<IOddProperty, IInvokable>(OddPropertyEntries);
const TIntfInfo TDescribed<IRecord>::Info = DescribeIntf<IRecord, IInvokable>(RecordEntries);
const TIntfInfo TDescribed<IAddress>::Info = DescribeIntf<IAddress, IInvokable>(AddressEntries);
const TIntfInfo TDescribed<IPatient>::Info = DescribeIntf<IPatient, IInvokable>(PatientEntries);

Ref<IOCLInteger> TPatient::ageIn(IOCLInteger* years) {
  ArgRefsSeen = years ? years->GetRefCount() : 0;
  return MakeRef<TOCLInteger>(Age + (years ? years->GetasInt64() : 0));
}

Ref<IOCLBoolean> TPatient::livesIn(IAddress* place) {
  return TOCLBoolean::BooleanValue(place && Home && place->GetCity() == Home->GetCity());
}

}  // namespace gello
