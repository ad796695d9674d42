#include "MethodNames.h"
#include "RegistryText.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/Property.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/OCLIntfTables.h"
#include "gello/registry/RegisteredMethod.h"
#include "gello/registry/Registry.h"

namespace gello {

namespace {

[[noreturn]] void RaiseCallingConvention(const String& ClassName, const TIntfEntry& Entry) {
  throw Exception(u"bad calling convention for method " + ClassName + u"." + Text(Entry.Name));
}

// Script entries must be stdcall functions with an OCL result; internal ones are skipped.
void CheckScriptEntries(const String& ClassName, const TIntfInfo& Intf) {
  for (const TIntfEntry& Entry : Intf.Entries) {
    if (!IsSelfMethod(Intf, Entry) || Entry.CallConv == cc_register) continue;
    if (Entry.CallConv != cc_stdcall) RaiseCallingConvention(ClassName, Entry);
    if (Entry.Kind == mk_function && !IsOCLInterface(Entry.ResultType))
      throw Exception(u"Bad Return type for RTTI " + ClassName + u":" + Text(Entry.Name));
  }
}

bool IsScriptFunction(const TIntfInfo& Intf, const TIntfEntry& Entry) {
  return IsSelfMethod(Intf, Entry) && Entry.CallConv == cc_stdcall && Entry.Kind == mk_function;
}

}  // namespace

Ref<IRTTIClass> TOCLClassRegistry::ClassOfIntf(const TIntfInfo& Intf) {
  Ref<IRTTIClass> Class = FindRegisteredType(Intf);
  return Class ? Class : AddIntf(String(), Intf);
}

Ref<IRTTIClass> TOCLClassRegistry::ValueClass(THostKind Kind, const TIntfInfo* Intf,
                                              const char* TypeName) {
  switch (Kind) {
    case hk_integer:
      return ClassOfIntf(TDescribed<IOCLInteger>::Info);
    case hk_boolean:
      return ClassOfIntf(TDescribed<IOCLBoolean>::Info);
    case hk_float:
      return ClassOfIntf(TDescribed<IOCLReal>::Info);
    case hk_string:
      return ClassOfIntf(TDescribed<IOCLString>::Info);
    case hk_interface:
      if (!Intf) Intf = FindInterfaceTypeByName(Text(TypeName));
      return Intf ? ClassOfIntf(*Intf) : nullptr;
    case hk_other:
      break;
  }
  return nullptr;
}

Ref<IRTTIMethod> TOCLClassRegistry::BuildMethod(const String& ModelName, const TIntfEntry& Entry,
                                                int Slot) {
  auto Method =
      MakeRef<TOCLRegisteredMethod>(ModelName, ClassOfIntf(*Entry.ResultType), Entry, Slot);
  for (std::size_t i = 1; i < Entry.Params.size(); ++i) {
    const TIntfParam& Param = Entry.Params[i];
    if (Ref<IRTTIClass> Type = ValueClass(Param.Kind, Param.TypeRef, Param.TypeName))
      Method->GetParams()->Add(MakeRef<TRTTIProperty>(Text(Param.Name), Type));
  }
  return Method;
}

Ref<IRTTIClass> TOCLClassRegistry::RegisterRTTIInterface(const String& Name, const TIntfInfo& Intf,
                                                         const TIntfInfo* ElementIntf,
                                                         THostClass ImplClass) {
  CheckScriptEntries(DisplayName(Name, Intf), Intf);
  Ref<IRTTIClass> Class = AddIntf(Name, Intf);
  SetInstanceClass(Intf, ImplClass);
  if (IsOCLInterface(Intf.Parent)) Class->SetAncestor(ClassOfIntf(*Intf.Parent));
  if (ElementIntf) Class->SetElementType(ClassOfIntf(*ElementIntf));
  const int First = GetIntfFirstSlot(Intf);
  for (std::size_t p = 0; p < Intf.Entries.size(); ++p) {
    const TIntfEntry& Entry = Intf.Entries[p];
    if (!IsScriptFunction(Intf, Entry)) continue;
    bool CollectionOp = false;
    const String ModelName = RTTIMethodName(Text(Entry.Name), CollectionOp);
    Ref<IRTTIMethod> Method = BuildMethod(ModelName, Entry, First + static_cast<int>(p));
    Method->SetCollectionOp(CollectionOp);
    Class->GetMembers()->Add(Method);
  }
  return Class;
}

std::vector<Ref<IRTTIMethod>> TOCLClassRegistry::BuildMethodList(IRTTIClass& Class,
                                                                 const TIntfInfo& Table) {
  for (const TIntfEntry& Entry : Table.Entries)
    if (IsSelfMethod(Table, Entry) && Entry.Kind == mk_function && Entry.CallConv != cc_stdcall)
      RaiseCallingConvention(Class.GetName(), Entry);
  std::vector<Ref<IRTTIMethod>> Methods;
  const int First = GetIntfFirstSlot(Table);
  for (std::size_t p = 0; p < Table.Entries.size(); ++p) {
    const TIntfEntry& Entry = Table.Entries[p];
    if (!IsScriptFunction(Table, Entry) || !IsOCLInterface(Entry.ResultType)) continue;
    String ModelName = Text(Entry.Name);
    if (ModelName.starts_with(u"Get") || ModelName.starts_with(u"Set")) {
      if (Class.Lookup<IRTTIProperty>(ModelName.substr(3))) continue;  // an accessor
    } else if (String Operator = OperatorName(ModelName); !Operator.empty()) {
      ModelName = Operator;
    }
    Methods.push_back(BuildMethod(ModelName, Entry, First + static_cast<int>(p)));
  }
  return Methods;
}

void TOCLClassRegistry::BuildMethods(const Ref<IRTTIClass>& Class, const TIntfInfo& MethodTable) {
  for (const Ref<IRTTIMethod>& Method : BuildMethodList(*Class, MethodTable))
    Class->GetMembers()->Add(Method);
}

void TOCLClassRegistry::RegisterRTTIClass(const Ref<IRTTIClass>& Class,
                                          const TIntfInfo& MethodTable) {
  for (const Ref<IRTTIMethod>& Method : BuildMethodList(*Class, MethodTable)) {
    Class->GetMembers()->Add(Method);
    if (Debug > 0)
      LogMessage(u"method " + Class->GetName() + u"." + Method->GetName() + u": " +
                 MethodSignature(*Method));
  }
}

}  // namespace gello
