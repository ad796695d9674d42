#include <cstdlib>
#include <utility>

#include "gello/foundation/Exceptions.h"
#include "gello/ocl/Bag.h"
#include "gello/ocl/Boolean.h"
#include "gello/ocl/Sequence.h"
#include "gello/ocl/Set.h"
#include "gello/ocl/SystemClasses.h"
#include "gello/ocl/Tuple.h"
#include "gello/ocl/Type.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/OCLIntfTables.h"
#include "gello/registry/Registry.h"

namespace gello {

namespace {

// The registry. At process end a registry still alive is dumped and freed: the handler is
// registered once a registry has been built, after every static that building it touched, so
// it runs before their destructors.
constinit TOCLClassRegistry* Current = nullptr;

void FinalizeAtExit() {
  FinalizeOCLRegistry();
}

void Install(std::unique_ptr<TOCLClassRegistry> Registry) {
  static const bool Registered = std::atexit(&FinalizeAtExit) == 0;
  (void)Registered;
  delete std::exchange(Current, Registry.release());
}

struct TSystemInterface {
  const char16_t* Name;
  const TIntfInfo& Intf;
  const TIntfInfo* ElementIntf;
  THostClassInfo ImplClass;
  Ref<IRTTIClass> TOCLSystemClasses::*Handle;
};

template <class I>
const TIntfInfo& Intf() {
  return TDescribed<I>::Info;
}

template <class V>
Ref<IOCLAny> Make(const Ref<IRTTIClass>& Class) {
  return MakeRef<V>(Class);
}

// The implementing class behind a system class that the value factory asks the registry for;
// values of the simple kinds are made by kind, and an iterator only ever over a collection.
template <class V>
constexpr THostClassInfo Impl(const char* Name) {
  return {Name, hc_class, &Make<V>};
}

using S = TOCLSystemClasses;
const TSystemInterface SystemInterfaces[] = {
    {u"System::Any", Intf<IOCLAny>(), nullptr, Impl<TOCLAny>("TOCLAny"), &S::Any},
    {u"System::T", Intf<IOCLT>(), nullptr, Impl<TOCLT>("TOCLT"), &S::T},
    {u"System::Boolean",
     Intf<IOCLBoolean>(),
     nullptr,
     {"TOCLBooleanValue", hc_class, nullptr},
     &S::Boolean},
    {u"System::Real", Intf<IOCLReal>(), nullptr, {"TOCLReal", hc_class, nullptr}, &S::Real},
    {u"System::Integer",
     Intf<IOCLInteger>(),
     nullptr,
     {"TOCLInteger", hc_class, nullptr},
     &S::Integer},
    {u"System::String", Intf<IOCLString>(), nullptr, {"TOCLString", hc_class, nullptr}, &S::String},
    {u"System::Collection(T)", Intf<IOCLCollection>(), &Intf<IOCLAny>(),
     Impl<TOCLCollection>("TOCLCollection"), &S::Collection},
    {u"System::Bag(T)", Intf<IOCLBag>(), nullptr, Impl<TOCLBag>("TOCLBag"), &S::Bag},
    {u"System::Sequence(T)", Intf<IOCLSequence>(), nullptr, Impl<TOCLSequence>("TOCLSequence"),
     &S::Sequence},
    {u"System::Set(T)", Intf<IOCLSet>(), nullptr, Impl<TOCLSet>("TOCLSet"), &S::Set},
    {u"System::Tuple", Intf<IOCLTuple>(), nullptr, Impl<TOCLTuple>("TOCLTuple"), &S::Tuple},
    {u"System::Iterator",
     Intf<IOCLIterator>(),
     nullptr,
     {"TOCLIterator", hc_class, nullptr},
     &S::Iterator}};

// Bound first, so that operations naming one another's interfaces find their classes: the
// seven basic interfaces, then the collections and Tuple (Any answers a Set, Collection a
// Sequence, before those are registered).
const std::pair<const char16_t*, const TIntfInfo&> ForwardInterfaces[] = {
    {u"System::Any", Intf<IOCLAny>()},           {u"System::T", Intf<IOCLT>()},
    {u"System::Boolean", Intf<IOCLBoolean>()},   {u"System::String", Intf<IOCLString>()},
    {u"System::Real", Intf<IOCLReal>()},         {u"System::Integer", Intf<IOCLInteger>()},
    {u"System::Iterator", Intf<IOCLIterator>()}, {u"System::Collection(T)", Intf<IOCLCollection>()},
    {u"System::Bag(T)", Intf<IOCLBag>()},        {u"System::Sequence(T)", Intf<IOCLSequence>()},
    {u"System::Set(T)", Intf<IOCLSet>()},        {u"System::Tuple", Intf<IOCLTuple>()}};

}  // namespace

TOCLClassRegistry& OCLRegistry() {
  if (!Current) throw Exception(u"Internal Error: OCL Registry has not been initialized.");
  return *Current;
}

void RegisterInterfaces() {
  OCLSystemClasses();
  TOCLBoolean::UndefinedBoolean();
  auto Made = std::make_unique<TOCLClassRegistry>();
  TOCLClassRegistry& Registry = *Made;
  for (const auto& [Name, Intf] : ForwardInterfaces)
    Registry.AddIntf(Name, Intf);
  TOCLSystemClasses Classes;
  for (const TSystemInterface& System : SystemInterfaces)
    Classes.*System.Handle = Registry.RegisterRTTIInterface(System.Name, System.Intf,
                                                            System.ElementIntf, &System.ImplClass);
  SetOCLSystemClasses(Classes);
  Install(std::move(Made));
  // The shared Booleans: false, true, unknown and the undefined one.
  TOCLBoolean::BooleanValue(rtti_false);
  TOCLBoolean::BooleanValue(rtti_true);
  TOCLBoolean::BooleanValue(rtti_unknown);
}

void UnregisterInterfaces() {
  OCLRegistry().UnregisterPackage(u"System");
}

void UnregisterAllInterfaces() {
  TOCLClassRegistry& Registry = OCLRegistry();
  Ref<IRTTIElementList> Members = Registry.GetGlobals()->GetMembers();
  for (int i = Members->GetCount() - 1; i >= 0; --i)
    if (auto Package = DynCast<IRTTIPackage>(Members->GetItems(i)))
      Registry.UnregisterPackage(Package->GetName());
  if (Registry.Debug > 0) Registry.Dump(true);
}

void FinalizeOCLRegistry() {
  std::unique_ptr<TOCLClassRegistry> Registry(std::exchange(Current, nullptr));
  if (!Registry) return;
  Registry->Dump(true);
  ClearOCLSystemClasses();
}

void OCLCast(RefCounted* Source, const GUID& IID, Ref<RefCounted>& Target) {
  const TOCLRegistryEntry* Entry = OCLRegistry().GetItemByGUID(IID);
  if (Entry)
    IntfCast(Source, Entry->GetIntf(), Target);
  else
    Target = nullptr;
}

}  // namespace gello
