#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/ElementList.h"
#include "gello/registry/Registry.h"

namespace gello {

Ref<IRTTIPackage> TOCLClassRegistry::GetPackage(const String& Name) const {
  return FGlobals->Find<IRTTIPackage>(Name);
}

Ref<IRTTIPackage> TOCLClassRegistry::RegisterPackage(const String& Name,
                                                     const std::vector<String>& Imports) {
  std::vector<Ref<IRTTIPackage>> Imported;
  for (const String& Import : Imports) {
    Imported.push_back(GetPackage(Import));
    if (!Imported.back()) throw Exception(u"import package not found : " + Import);
  }
  Ref<IRTTIPackage> Package = GetPackage(Name);
  if (!Package) {
    Package = MakeRef<TRTTIPackage>(Name);
    FGlobals->GetMembers()->Add(Package);
  }
  for (const Ref<IRTTIPackage>& Import : Imported) {
    Import->Use();
    if (!Package->GetImports()) Package->SetImports(MakeRef<TRTTIElementList>());
    Package->GetImports()->Add(Import);
  }
  return Package;
}

void TOCLClassRegistry::UnregisterPackage(const String& Name) {
  LogMessage(u"Unregistering package " + Name);
  Ref<IRTTIPackage> Package = GetPackage(Name);
  if (!Package) {
    LogMessage(u"package " + Name + u" not found.");
    return;
  }
  if (Package->GetUseCount() > 0)
    throw Exception(u"unable to unregister package " + Name + u" because it's usecount is > 0");
  Ref<IRTTIElementList> Imports = Package->GetImports();
  for (int i = 0; Imports && i < Imports->GetCount(); ++i)
    if (auto Import = DynCast<IRTTIPackage>(Imports->GetItems(i))) Import->Unuse();
  Ref<IRTTIElementList> Members = Package->GetMembers();
  std::erase_if(FEntries, [&](const std::unique_ptr<TOCLRegistryEntry>& Entry) {
    return Members->Exists(Entry->GetClass().get());
  });
  Ref<IRTTIElementList> Packages = FGlobals->GetMembers();
  Packages->Delete(Packages->IndexOfElement(Package.get()));
}

}  // namespace gello
