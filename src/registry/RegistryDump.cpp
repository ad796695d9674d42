#include "RegistryText.h"
#include "gello/foundation/Log.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/Registry.h"

namespace gello {

namespace {

// "Registered GELLO class Integer extends Real host type = IOCLInteger".
String EntryLine(const TOCLRegistryEntry& Entry) {
  const Ref<IRTTIClass>& Class = Entry.GetClass();
  String Line = u"Registered GELLO class " + NameOrNull(Class.get());
  if (Ref<IRTTIClass> Ancestor = Class->GetAncestor())
    Line += u" extends " + NameOrNull(Ancestor.get());
  if (Ref<IRTTIClass> Element = Class->GetImmediateElementType())
    Line += u" elementtype=" + NameOrNull(Element.get());
  if (THostClass Host = Class->GetHostType()) Line += u" host type = " + Text(Host->Name);
  return Line;
}

void DumpMethods(const IRTTIClass& Class) {
  Ref<IRTTIElementList> Members = Class.GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    if (auto Method = DynCast<IRTTIMethod>(Members->GetItems(i)))
      LogMessage(u"  " + IntToStr(Method->GetVmtIndex()) + u": " + Method->GetName() +
                 MethodSignature(*Method));
}

}  // namespace

void TOCLClassRegistry::Dump(bool Verbose) const {
  LogMessage(u"OCL Registry");
  for (const auto& Entry : FEntries) {
    LogMessage(EntryLine(*Entry));
    if (Verbose) DumpMethods(*Entry->GetClass());
  }
}

void TOCLClassRegistry::DumpInterface(const IRTTIClass& Class) const {
  const TIntfInfo* Intf = AsIntfInfo(Class.GetHostType());
  if (Intf)
    DumpIntf(u"Interface List for " + Class.GetName(), *Intf);
  else
    LogMessage(u"Interface List for " + Class.GetName());
}

void TOCLClassRegistry::DumpIntf(const String& Title, const TIntfInfo& Intf) const {
  LogMessage(Title);
  std::vector<String> Lines;
  PrintInterface(Intf, Lines);
  for (const String& Line : Lines)
    LogMessage(Line);
}

}  // namespace gello
