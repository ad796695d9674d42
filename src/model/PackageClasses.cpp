// Finding a package's classes, and making placeholders for names not yet defined.
#include "gello/model/Class.h"
#include "gello/model/Package.h"

namespace gello {
namespace {

Ref<IRTTIClass> FindInPackages(IRTTIScope& Owner, const String& Name) {
  Ref<IRTTIElementList> Members = Owner.GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Package = DynCast<IRTTIPackage>(Members->GetItems(i)))
      if (Ref<IRTTIClass> Found = Package->Find<IRTTIClass>(Name)) return Found;
  return nullptr;
}

}  // namespace

Ref<IRTTIClass> TRTTIPackage::FindClass(const String& Name) {
  if (Ref<IRTTIClass> Found = TRTTIScope::FindClass(Name)) return Found;
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Package = DynCast<IRTTIPackage>(Members->GetItems(i)))
      if (Ref<IRTTIClass> Found = Package->FindClass(Name)) return Found;
  return nullptr;
}

Ref<IRTTIClass> TRTTIPackage::FindQualified(const String& PackageName, const String& ClassName,
                                            IRTTIGlobals* Globals) {
  if (!Globals) return nullptr;
  Ref<IRTTIElementList> Packages = Globals->GetMembers();
  for (int i = 0; Packages && i < Packages->GetCount(); ++i) {
    auto Package = DynCast<IRTTIPackage>(Packages->GetItems(i));
    if (!Package || Package->GetName() != PackageName) continue;
    if (Ref<IRTTIClass> Found = Package->Find<IRTTIClass>(ClassName)) return Found;
  }
  return nullptr;
}

Ref<IRTTIClass> TRTTIPackage::FindAddClass(const String& Name, IRTTIGlobals* Globals) {
  const std::size_t Separator = Name.find(u"::");
  // A generic name such as Set(A::B) is always taken whole.
  if (Name.find(u'(') == String::npos && Separator != String::npos)
    return FindQualified(Name.substr(0, Separator), Name.substr(Separator + 2), Globals);
  if (Name.empty()) return MakeRef<TRTTIClass>(u"Tuple");
  Ref<IRTTIClass> Found = Find<IRTTIClass>(Name);
  if (!Found && Globals) {
    if (Ref<IRTTIPackage> System = Globals->Get_System()) Found = System->Find<IRTTIClass>(Name);
    if (!Found) Found = FindInPackages(*Globals, Name);
  }
  if (!Found) {
    // A forward reference: the placeholder is the class that its later definition fills.
    Found = MakeRef<TRTTIClass>(Name);
    GetMembers()->Add(Found);
  }
  return Found;
}

}  // namespace gello
