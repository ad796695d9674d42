#include <vector>

#include "MethodNames.h"
#include "RegistryText.h"
#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/Property.h"
#include "gello/registry/IntfQueries.h"
#include "gello/registry/OCLIntfTables.h"
#include "gello/registry/Registry.h"

namespace gello {

/// A host property: its getter and setter entries with their slots.
struct THostProperty {
  String Name;
  const TIntfEntry* Getter = nullptr;
  int GetterSlot = 0;
  const TIntfEntry* Setter = nullptr;
  int SetterSlot = 0;
};

/// What a host interface adds to its class, checked before anything is registered.
struct THostPlan {
  std::vector<std::pair<const TIntfEntry*, int>> Methods;
  std::vector<THostProperty> Properties;
};

namespace {

const TIntfInfo* AccessorType(const TIntfEntry& Entry) {
  return Entry.Kind == mk_function ? Entry.ResultType : Entry.Params[1].TypeRef;
}

// "GetX" with no argument or "SetX" with one, of a host value kind.
bool IsAccessor(const TIntfEntry& Entry) {
  const String Name = Text(Entry.Name);
  const bool Shape =
      (Name.starts_with(u"Get") && Entry.Kind == mk_function && Entry.Params.size() == 1) ||
      (Name.starts_with(u"Set") && Entry.Kind == mk_procedure && Entry.Params.size() == 2);
  return Shape && AccessorKind(Entry) != hk_other &&
         (AccessorKind(Entry) != hk_interface || AccessorType(Entry));
}

THostProperty& PropertyNamed(THostPlan& Plan, const String& Name) {
  for (THostProperty& Property : Plan.Properties)
    if (Property.Name == Name) return Property;
  return Plan.Properties.emplace_back(THostProperty{Name});
}

void PlanAccessor(THostPlan& Plan, const String& ClassName, const TIntfEntry& Entry, int Slot) {
  THostProperty& Property = PropertyNamed(Plan, Text(Entry.Name).substr(3));
  const bool Getter = Entry.Kind == mk_function;
  const TIntfEntry*& Own = Getter ? Property.Getter : Property.Setter;
  const TIntfEntry* Other = Getter ? Property.Setter : Property.Getter;
  if (Own || (Other && (AccessorKind(*Other) != AccessorKind(Entry) ||
                        AccessorType(*Other) != AccessorType(Entry))))
    throw Exception(u"host type given twice for property " + ClassName + u"." + Property.Name);
  Own = &Entry;
  (Getter ? Property.GetterSlot : Property.SetterSlot) = Slot;
}

THostPlan PlanHostMembers(const String& ClassName, const TIntfInfo& Intf) {
  THostPlan Plan;
  const int First = GetIntfFirstSlot(Intf);
  for (std::size_t p = 0; p < Intf.Entries.size(); ++p) {
    const TIntfEntry& Entry = Intf.Entries[p];
    const int Slot = First + static_cast<int>(p);
    if (!IsSelfMethod(Intf, Entry)) continue;
    if (Entry.CallConv == cc_register && IsAccessor(Entry)) {
      PlanAccessor(Plan, ClassName, Entry, Slot);
    } else if (Entry.CallConv != cc_stdcall) {
      throw Exception(u"bad calling convention for method " + ClassName + u"." + Text(Entry.Name));
    } else if (Entry.Kind == mk_function) {
      if (!IsOCLInterface(Entry.ResultType))
        throw Exception(u"Bad Return type for RTTI " + ClassName + u":" + Text(Entry.Name));
      Plan.Methods.emplace_back(&Entry, Slot);
    }
  }
  return Plan;
}

}  // namespace

Ref<IRTTIClass> TOCLClassRegistry::RegisterHostInterface(const String& Name, const TIntfInfo& Intf,
                                                         THostClass ImplClass) {
  LogMessage(u"register " + Name + u" Interface name = " + Text(Intf.Name) + u" Class name = " +
             (ImplClass ? Text(ImplClass->Name) : String()) + u" GUID=" + Intf.IID.ToString());
  DumpIntf(u"Interface List for " + Text(Intf.Name), Intf);
  const TIntfInfo& Invokable = TDescribed<IInvokable>::Info;
  if (&Intf != &Invokable && !IntfHasAncestor(Intf, Invokable))
    throw Exception(Text(Intf.Name) + u" must derive from IInvokable");
  const THostPlan Plan = PlanHostMembers(DisplayName(Name, Intf), Intf);
  Ref<IRTTIClass> Class = AddIntf(Name, Intf);
  SetInstanceClass(Intf, ImplClass);
  for (auto& Entry : FEntries)
    if (&Entry->GetIntf() == &Intf) Entry->SetNative(true);
  AddHostMembers(Class, Plan);
  return Class;
}

void TOCLClassRegistry::AddHostMembers(const Ref<IRTTIClass>& Class, const THostPlan& Plan) {
  for (const auto& [Entry, Slot] : Plan.Methods) {
    bool CollectionOp = false;
    Ref<IRTTIMethod> Method =
        BuildMethod(RTTIMethodName(Text(Entry->Name), CollectionOp), *Entry, Slot);
    Method->SetCollectionOp(CollectionOp);
    Class->GetMembers()->Add(Method);
  }
  for (const THostProperty& Planned : Plan.Properties) {
    const TIntfEntry& Info = Planned.Getter ? *Planned.Getter : *Planned.Setter;
    auto Property = MakeRef<TRTTIProperty>(
        Planned.Name, ValueClass(AccessorKind(Info), AccessorType(Info), ""), &Info);
    Property->SetGetterVMTIndex(Planned.GetterSlot);
    Property->SetSetterVMTIndex(Planned.SetterSlot);
    Property->SetReadOnly(!Planned.Setter);
    Class->GetMembers()->Add(Property);
  }
}

}  // namespace gello
