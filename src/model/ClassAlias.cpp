#include "gello/model/ClassAlias.h"

#include <algorithm>
#include <vector>

#include "gello/foundation/Exceptions.h"

namespace gello {

TRTTIClassAlias::TRTTIClassAlias(String Name) : TRTTIScope(std::move(Name)) {}

TRTTIClassAlias::TRTTIClassAlias(const String& Name, const Ref<IRTTIClass>& ActualClass)
    : TRTTIScope(Name), FActualClass(ActualClass) {}

TRTTIClassAlias::~TRTTIClassAlias() {
  TRTTIClassAlias::Clear();
}

void TRTTIClassAlias::SetActualClass(const Ref<IRTTIClass>& Value) {
  GELLO_ASSERT(Value, u"Assertion failure");
  FActualClass = Value;
}

namespace {

// Whether following Class through aliases comes back to an alias already passed.
bool AliasesLoop(IRTTIClass* Class, const IRTTIClass* Self) {
  std::vector<const IRTTIClass*> Passed{Self};
  while (auto* Alias = CachedCast<TRTTIClassAlias>(Class)) {
    if (std::find(Passed.begin(), Passed.end(), Class) != Passed.end()) return true;
    Passed.push_back(Class);
    Class = Alias->GetActualClass().get();
  }
  return false;
}

}  // namespace

void TRTTIClassAlias::Resolve(IRTTIScope* Scope) {
  TRTTIScope::Resolve(Scope);
  Ref<IRTTIClass> Resolved = ResolveClass(FActualClass, Scope);
  // An alias named like its class finds itself; it keeps standing for the class.
  if (Resolved.get() != static_cast<IRTTIClass*>(this)) {
    // Aliases that stand for one another stand for no class: every query would go round.
    GELLO_ASSERT(!AliasesLoop(Resolved.get(), this), u"Assertion failure");
    FActualClass = Resolved;
  }
  GELLO_ASSERT(FActualClass, u"Assertion failure");
}

void TRTTIClassAlias::Clear() {
  FActualClass = nullptr;
  TRTTIScope::Clear();
}

// An alias without its class (read but not yet resolved) answers as an empty class would.
bool TRTTIClassAlias::GetResolved() const {
  return FActualClass && FActualClass->GetResolved();
}
int TRTTIClassAlias::AllocatePropertyIndex() {
  return FActualClass ? FActualClass->AllocatePropertyIndex() : 0;
}
Ref<IRTTIMethod> TRTTIClassAlias::FindMethod(const String& Name, IRTTIElementList* Args) {
  return FActualClass ? FActualClass->FindMethod(Name, Args) : nullptr;
}
Ref<IRTTIClass> TRTTIClassAlias::GetAncestor() const {
  return FActualClass ? FActualClass->GetAncestor() : nullptr;
}
String TRTTIClassAlias::GetHostClassName() const {
  return FActualClass ? FActualClass->GetHostClassName() : String();
}
THostClass TRTTIClassAlias::GetHostType() const {
  return FActualClass ? FActualClass->GetHostType() : nullptr;
}
Ref<IRTTIClass> TRTTIClassAlias::GetElementType() const {
  return FActualClass ? FActualClass->GetElementType() : nullptr;
}
Ref<IRTTIElementList> TRTTIClassAlias::GetEnums() const {
  return FActualClass ? FActualClass->GetEnums() : nullptr;
}
GUID TRTTIClassAlias::GetInstanceIntf() const {
  return FActualClass ? FActualClass->GetInstanceIntf() : nullGUID;
}
Ref<IRTTIClass> TRTTIClassAlias::GetImmediateElementType() const {
  return FActualClass ? FActualClass->GetImmediateElementType() : nullptr;
}
TRTTIClassKind TRTTIClassAlias::GetClassKind() const {
  return FActualClass ? FActualClass->GetClassKind() : rtti_undefined;
}
THostClass TRTTIClassAlias::GetInstanceImpl() const {
  return FActualClass ? FActualClass->GetInstanceImpl() : nullptr;
}
bool TRTTIClassAlias::IsGeneric() const {
  return FActualClass && FActualClass->IsGeneric();
}
Ref<IRTTIProperty> TRTTIClassAlias::GetProperties(int Index) {
  return FActualClass ? FActualClass->GetProperties(Index) : nullptr;
}
int TRTTIClassAlias::GetPropertyCount() {
  return FActualClass ? FActualClass->GetPropertyCount() : 0;
}
int TRTTIClassAlias::GetPropertyIndexAllocation() {
  return FActualClass ? FActualClass->GetPropertyIndexAllocation() : 0;
}
bool TRTTIClassAlias::IsClass(IRTTIClass* Other) {
  return FActualClass && FActualClass->IsClass(Other);
}
bool TRTTIClassAlias::IsCollection() const {
  return FActualClass && FActualClass->IsCollection();
}
bool TRTTIClassAlias::GetIsTuple() const {
  return FActualClass && FActualClass->GetIsTuple();
}
bool TRTTIClassAlias::HasAncestor(IRTTIClass* Other) const {
  return FActualClass && FActualClass->HasAncestor(Other);
}
void TRTTIClassAlias::WalkRefs(IRTTIElementList& List) {
  if (FActualClass) FActualClass->WalkRefs(List);
}

}  // namespace gello
