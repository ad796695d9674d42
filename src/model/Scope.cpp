#include "gello/model/Scope.h"

#include "gello/foundation/Exceptions.h"
#include "gello/foundation/Log.h"
#include "gello/model/ElementList.h"
#include "gello/model/InterfaceQuery.h"

namespace gello {

TRTTIScope::TRTTIScope(String Name, bool OwnsMembers)
    : TRTTIElement(std::move(Name)),
      FMembers(MakeRef<TRTTIElementList>()),
      FOwnsMembers(OwnsMembers) {}

TRTTIScope::~TRTTIScope() {
  TRTTIScope::Clear();
}

Ref<IRTTIElementList> TRTTIScope::GetStatements() const {
  if (!FStatements) FStatements = MakeRef<TRTTIElementList>();
  return FStatements;
}

bool TRTTIScope::AddMember(const Ref<IRTTIElement>& Element) {
  GELLO_ASSERT(Element, u"Adding null element to list");
  // The virtual Lookup: a class also refuses a name that one of its ancestors uses.
  if (Lookup(Element->GetName(), IRTTIElement::IID)) return false;
  FMembers->Add(Element);
  return true;
}

Ref<IRTTIElement> TRTTIScope::Find(const String& Name, const GUID& InterfaceId) {
  if (!FMembers) return nullptr;
  Ref<IRTTIElement> Member = FMembers->GetItemByName(Name);
  return Supports(Member.get(), InterfaceId) ? Member : nullptr;
}

Ref<IRTTIElementList> TRTTIScope::FindAll(const String& Name, const GUID& InterfaceId) {
  auto Result = MakeRef<TRTTIElementList>();
  if (!FMembers) return Result;
  Ref<IRTTIElementList> Named = FMembers->ItemsByName(Name);
  for (int i = 0; i < Named->GetCount(); ++i)
    if (Supports(Named->GetItems(i).get(), InterfaceId)) Result->Add(Named->GetItems(i));
  return Result;
}

Ref<IRTTIClass> TRTTIScope::FindClass(const String& Name) {
  return Find<IRTTIClass>(Name);
}

Ref<IRTTIElement> TRTTIScope::Lookup(const String& Name, const GUID& InterfaceId) {
  if (Ref<IRTTIElement> Found = Find(Name, InterfaceId)) return Found;
  // References read from XMI name elements by their UML ids.
  Ref<IRTTIElement> ById = FMembers ? FMembers->GetItemByUMLID(Name) : nullptr;
  if (ById) LogMessage(u"UMLID " + Name + u" found.  Real name" + ById->GetName());
  return ById;
}

Ref<IRTTIElementList> TRTTIScope::LookupAll(const String& Name, const GUID& InterfaceId) {
  return FindAll(Name, InterfaceId);
}

int TRTTIScope::GetVisibleCount() const {
  int Count = 0;
  for (int i = 0; FMembers && i < FMembers->GetCount(); ++i)
    if (!FMembers->GetItems(i)->GetHidden()) ++Count;
  return Count;
}

Ref<IRTTIElement> TRTTIScope::GetVisibleMembers(int Index) const {
  for (int i = 0; FMembers && i < FMembers->GetCount(); ++i) {
    Ref<IRTTIElement> Member = FMembers->GetItems(i);
    if (!Member->GetHidden() && Index-- == 0) return Member;
  }
  return nullptr;
}

void TRTTIScope::SortAll() {
  if (FMembers) FMembers->Sort();
}

void TRTTIScope::WalkClasses(IRTTIElementList& List) {
  for (int i = 0; FMembers && i < FMembers->GetCount(); ++i)
    FMembers->GetItems(i)->WalkClasses(List);
}

void TRTTIScope::Resolve(IRTTIScope* Scope) {
  if (FMembers) FMembers->Resolve(Scope);
  TRTTIElement::Resolve(Scope);
}

void TRTTIScope::Clear() {
  // Only an owner clears the members; others let go of the lists, which may be shared.
  if (FOwnsMembers) {
    if (FMembers) FMembers->Reset();
    if (FStatements) FStatements->Reset();
  } else {
    FMembers = MakeRef<TRTTIElementList>();
    FStatements = nullptr;
  }
  TRTTIElement::Clear();
}

}  // namespace gello
