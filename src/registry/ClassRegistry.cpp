#include "RegistryText.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/Class.h"
#include "gello/registry/Registry.h"

namespace gello {

namespace {

// "Package::Class" split at the first "::"; no package for a plain name.
struct TQualifiedName {
  explicit TQualifiedName(const String& Name) {
    const std::size_t Colons = Name.find(u"::");
    Short = Colons == String::npos ? Name : Name.substr(Colons + 2);
    if (Colons != String::npos) Package = Name.substr(0, Colons);
  }
  String Package;
  String Short;
};

}  // namespace

TOCLClassRegistry::TOCLClassRegistry() : FGlobals(MakeRef<TRTTIGlobals>()) {}

TOCLClassRegistry::~TOCLClassRegistry() {
  FEntries.clear();
  FGlobals->Clear();
}

Ref<IRTTIClass> TOCLClassRegistry::AddIntf(const String& Name, const TIntfInfo& Intf) {
  const TQualifiedName Qualified(Name);
  Ref<IRTTIPackage> Package;
  if (Name.find(u"::") != String::npos) {
    Package = GetPackage(Qualified.Package);
    if (!Package) throw Exception(u"package " + Qualified.Package + u" must be registered first.");
  }
  Ref<IRTTIClass> Class = FindClassByGUID(Intf.IID);
  if (!Class) {
    if (Package)
      Class = Package->Find<IRTTIClass>(Qualified.Short);
    else if (!Name.empty())
      Class = FGlobals->Lookup<IRTTIClass>(Qualified.Short);
    if (!Class) {
      if (Name.empty())
        LogMessage(u"Registering anonymous class for interface " + Text(Intf.Name) + u" " +
                   Intf.IID.ToString());
      Class = MakeRef<TRTTIClass>(Qualified.Short);
      if (Package) Package->GetMembers()->Add(Class);
    }
    RegisterInterface(Intf, Class);
  }
  if (Class->GetName().empty() && !Name.empty()) {
    if (!Package)
      throw Exception(u"Class Name in OCL Registry must specify package Name (" + Name + u")");
    Class->SetName(Qualified.Short);
    if (!Package->Find(Qualified.Short, IRTTIElement::IID)) Package->GetMembers()->Add(Class);
  }
  return Class;
}

Ref<IRTTIClass> TOCLClassRegistry::AddClass1(const String& Name) {
  const TQualifiedName Qualified(Name);
  if (Qualified.Package.empty())
    throw Exception(u"Class Name in OCL Registry must specify package Name (" + Name + u")");
  Ref<IRTTIPackage> Package = GetPackage(Qualified.Package);
  if (!Package) throw Exception(u"package " + Qualified.Package + u" must be registered first.");
  if (Ref<IRTTIClass> Found = Package->Find<IRTTIClass>(Qualified.Short)) return Found;
  auto Class = MakeRef<TRTTIClass>(Qualified.Short);
  Package->GetMembers()->Add(Class);
  return Class;
}

void TOCLClassRegistry::RegisterInterface(const TIntfInfo& Intf, const Ref<IRTTIClass>& Class) {
  FEntries.push_back(std::make_unique<TOCLRegistryEntry>(Intf, Class));
}

void TOCLClassRegistry::SetInstanceClass(const TIntfInfo& Intf, THostClass ImplClass) {
  for (auto& Entry : FEntries)
    if (&Entry->GetIntf() == &Intf) Entry->SetImplClass(ImplClass);
}

Ref<IRTTIClass> TOCLClassRegistry::FindClassByGUID(const GUID& IID) const {
  const TOCLRegistryEntry* Entry = GetItemByGUID(IID);
  return Entry ? Entry->GetClass() : nullptr;
}

const TOCLRegistryEntry* TOCLClassRegistry::GetItemByGUID(const GUID& IID) const {
  for (const auto& Entry : FEntries)
    if (Entry->GetClass()->GetInstanceIntf() == IID) return Entry.get();
  return nullptr;
}

const TOCLRegistryEntry* TOCLClassRegistry::GetItemByTypeInfo(const TIntfInfo& Intf) const {
  for (const auto& Entry : FEntries)
    if (&Entry->GetIntf() == &Intf) return Entry.get();
  return nullptr;
}

const TOCLRegistryEntry* TOCLClassRegistry::GetItemByClass(const IRTTIClass* Class) const {
  for (const auto& Entry : FEntries)
    if (Entry->GetClass().get() == Class) return Entry.get();
  return nullptr;
}

String TOCLClassRegistry::FindInterfaceNameByGUID(const GUID& IID) const {
  const TOCLRegistryEntry* Entry = GetItemByGUID(IID);
  return Entry ? Text(Entry->GetIntf().Name) : u"<unknown>";
}

const TIntfInfo* TOCLClassRegistry::FindInterfaceTypeByName(const String& Name) const {
  for (const auto& Entry : FEntries)
    if (Text(Entry->GetIntf().Name) == Name) return &Entry->GetIntf();
  return nullptr;
}

Ref<IRTTIClass> TOCLClassRegistry::FindHostClass(const String& Name) const {
  for (const auto& Entry : FEntries)
    if (Entry->GetImplClass() && Text(Entry->GetImplClass()->Name) == Name)
      return Entry->GetClass();
  return nullptr;
}

Ref<IRTTIClass> TOCLClassRegistry::FindOCLClass(const String& Name) const {
  const TQualifiedName Qualified(Name);
  Ref<IRTTIPackage> Package = GetPackage(Qualified.Package);
  for (const auto& Entry : FEntries) {
    const Ref<IRTTIClass>& Class = Entry->GetClass();
    if (Class->GetName() != Qualified.Short) continue;
    if (Qualified.Package.empty() || (Package && Package->GetMembers()->Exists(Class.get())))
      return Class;
  }
  return nullptr;
}

Ref<IRTTIClass> TOCLClassRegistry::FindRegisteredType(const TIntfInfo& Intf) const {
  const TOCLRegistryEntry* Entry = GetItemByTypeInfo(Intf);
  return Entry ? Entry->GetClass() : nullptr;
}

}  // namespace gello
