#include "gello/model/Class.h"

#include "AncestorWalk.h"
#include "gello/foundation/Log.h"
#include "gello/model/ElementList.h"

namespace gello {
namespace {
enum : std::uint32_t {
  walk_has_ancestor = 1,
  walk_element_type = 2,
  walk_is_collection = 4,
  walk_instance_impl = 8,
  walk_instance_intf = 16
};
}  // namespace

TRTTIClass::TRTTIClass(String Name, const Ref<IRTTIClass>& Ancestor,
                       const Ref<IRTTIClass>& ElementType)
    : TRTTIScope(std::move(Name), true), FElementType(ElementType) {
  TRTTIClass::SetAncestor(Ancestor);
}

TRTTIClass::~TRTTIClass() {
  TRTTIClass::Clear();
}

bool TRTTIClass::AddMember(const Ref<IRTTIElement>& Element) {
  const bool Added = TRTTIScope::AddMember(Element);
  // Added or not, a new property means the numbering must be done again.
  if (CachedCast<IRTTIProperty>(Element.get())) FPropertyIndexesAllocated = false;
  return Added;
}

Ref<IRTTIElement> TRTTIClass::Lookup(const String& Name, const GUID& InterfaceId) {
  Ref<IRTTIElement> Found;
  WalkAncestors(this, u"Lookup", [&](IRTTIClass* C) {
    Found = C->Find(Name, InterfaceId);
    return static_cast<bool>(Found);
  });
  return Found;
}

Ref<IRTTIElementList> TRTTIClass::LookupAll(const String& Name, const GUID& InterfaceId) {
  auto All = MakeRef<TRTTIElementList>();
  WalkAncestors(this, u"Lookup", [&](IRTTIClass* C) {
    All->Include(C->FindAll(Name, InterfaceId).get());
    return false;
  });
  return All;
}

Ref<IRTTIClass> TRTTIClass::GetElementType() const {
  if (FElementType || !FAncestor) return FElementType;
  TWalkGuard Guard(FWalking, walk_element_type, u"GetElementType", GetName());
  return Guard.Looped() ? nullptr : FAncestor->GetElementType();
}

bool TRTTIClass::IsCollection() const {
  if (FElementType) return true;
  if (!FAncestor) return false;
  TWalkGuard Guard(FWalking, walk_is_collection, u"IsCollection", GetName());
  return !Guard.Looped() && FAncestor->IsCollection();
}

GUID TRTTIClass::GetInstanceIntf() const {
  if (!IsNullGUID(FInstanceIntf) || !FAncestor) return FInstanceIntf;
  TWalkGuard Guard(FWalking, walk_instance_intf, u"GetInstanceIntf", GetName());
  return Guard.Looped() ? nullGUID : FAncestor->GetInstanceIntf();
}

THostClass TRTTIClass::GetInstanceImpl() const {
  if (FInstanceImpl || !FAncestor) return FInstanceImpl;
  TWalkGuard Guard(FWalking, walk_instance_impl, u"GetInstanceImpl", GetName());
  return Guard.Looped() ? nullptr : FAncestor->GetInstanceImpl();
}

bool TRTTIClass::HasAncestor(IRTTIClass* Other) const {
  if (Other == static_cast<const IRTTIClass*>(this)) return true;
  if (!FAncestor) return false;
  TWalkGuard Guard(FWalking, walk_has_ancestor, u"HasAncestor", GetName());
  return !Guard.Looped() && FAncestor->HasAncestor(Other);
}

void TRTTIClass::SetAncestor(const Ref<IRTTIClass>& Value) {
  FAncestor = Value;
  if (FAncestor && FAncestor.get() == static_cast<IRTTIClass*>(this)) {
    LogMessage(u"Warning: trying to set Class ancestor to Self (" + GetName() +
               u"). resetting to nil");
    FAncestor = nullptr;
  }
  if (FClassKind == rtti_undefined && Value) FClassKind = Value->GetClassKind();
}

void TRTTIClass::WalkClasses(IRTTIElementList& List) {
  if (List.Exists(this)) return;
  List.Add(Ref<IRTTIElement>(this));
  WalkRefs(List);
}

void TRTTIClass::WalkRefs(IRTTIElementList& List) {
  if (FAncestor) FAncestor->WalkClasses(List);
  if (FElementType) FElementType->WalkClasses(List);
  TRTTIScope::WalkClasses(List);
}

void TRTTIClass::Resolve(IRTTIScope* Scope) {
  SetAncestor(ResolveClass(FAncestor, Scope));
  FElementType = ResolveClass(FElementType, Scope);
  if (FEnums) FEnums->Resolve(Scope);
  TRTTIScope::Resolve(Scope);
}

void TRTTIClass::Clear() {
  FAncestor = nullptr;
  FElementType = nullptr;
  if (FEnums) FEnums->Reset();
  FEnums = nullptr;
  TRTTIScope::Clear();
}

String TRTTIClass::ExtractBaseName() const {
  const String Name = GetName();
  return Name.substr(0, Name.find(u'('));
}

String TRTTIClass::ExtractElementName() const {
  // The first ")" ends it, so Set(Set(Integer)) gives "Set(Integer"; generic instances are
  // cached by their whole name, never by this text.
  const String Name = GetName();
  const std::size_t Open = Name.find(u'(');
  if (Open == String::npos) return {};
  const std::size_t Close = Name.find(u')', Open);
  if (Close == String::npos) return {};
  return Name.substr(Open + 1, Close - Open - 1);
}

Ref<IRTTIClass> BuildClassRef(const String& Name) {
  return MakeRef<TRTTIClass>(Name);
}

}  // namespace gello
