// Type conformance of classes and the choice among overloaded methods.
#include "gello/foundation/Log.h"
#include "gello/model/Class.h"

#include "AncestorWalk.h"

namespace gello {
namespace {

String NameOf(const Ref<IRTTIClass>& Class) {
  return Class ? Class->GetName() : String();
}

// Whether the argument values' types fit the method's parameter types, position by position.
bool ArgumentsFit(IRTTIMethod& Method, IRTTIElementList* Args) {
  Ref<IRTTIElementList> Params = Method.GetParams();
  const int Count = Args ? Args->GetCount() : 0;
  if ((Params ? Params->GetCount() : 0) != Count) return false;
  for (int i = 0; i < Count; ++i) {
    Ref<IRTTIValue> Arg = DynCast<IRTTIValue>(Args->GetItems(i));
    Ref<IRTTIProperty> Param = DynCast<IRTTIProperty>(Params->GetItems(i));
    Ref<IRTTIClass> ArgType = Arg ? Arg->GetValueType() : nullptr;
    if (!ArgType || !Param || !ArgType->IsClass(Param->GetPropertyType().get())) return false;
  }
  return true;
}

}  // namespace

bool TRTTIClass::IsClass(IRTTIClass* Other) {
  if (!Other) return false;
  if (HasAncestor(Other) || IsGeneric()) return true;
  // An enumeration built on this class accepts this class's values.
  if (Other->GetEnums() && Other->GetAncestor().get() == static_cast<IRTTIClass*>(this))
    return true;
  if (IsCollection() && Other->IsCollection() && CollectionConforms(Other)) return true;
  return GetIsTuple() && TupleConforms(Other);
}

bool TRTTIClass::CollectionConforms(IRTTIClass* Other) {
  Ref<IRTTIClass> Mine = GetElementType();
  Ref<IRTTIClass> Theirs = Other->GetElementType();
  LogMessage(u"Testing Collection " + GetName() + u",ElementType=" + NameOf(Mine) + u" with " +
             Other->GetName() + u",ElementType=" + NameOf(Theirs));
  if (GetClassKind() != Other->GetClassKind() || !Mine) return false;
  // Only this side may be untyped: an untyped collection fits every collection of its kind.
  return Mine->HasAncestor(Theirs.get()) || (Mine->GetIsTuple() && Mine->IsClass(Theirs.get())) ||
         Mine->GetName() == u"_Untyped_";
}

bool TRTTIClass::TupleConforms(IRTTIClass* Other) {
  // A tuple type may name itself through its fields; a test already running answers false.
  TWalkGuard Guard(FWalking, 1u << 8, u"IsClass", GetName(), false);
  if (Guard.Looped()) return false;
  bool Result = Other->GetIsTuple() ? GetPropertyCount() == Other->GetPropertyCount()
                                    : Other->GetPropertyCount() > 0;
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i) {
    Ref<IRTTIProperty> Field = DynCast<IRTTIProperty>(Members->GetItems(i));
    if (!Field) continue;
    Ref<IRTTIProperty> Match = Other->Lookup<IRTTIProperty>(Field->GetName());
    Ref<IRTTIClass> FieldType = Field->GetPropertyType();
    const bool Fits = Match && FieldType && FieldType->IsClass(Match->GetPropertyType().get());
    Result = Result && Fits;
  }
  return Result;
}

bool TRTTIClass::Derives(IRTTIClass* Other, IRTTIElementList& Path) {
  if (Path.Exists(this)) return false;
  Path.Add(Ref<IRTTIElement>(this));
  if (Compatible(Other)) return true;
  if (IsCollection()) {
    Ref<IRTTIClass> Element = GetElementType();
    if (Element && Element->Derives(Other, Path)) return true;
  }
  return MembersDerive(Other, Path);
}

bool TRTTIClass::MembersDerive(IRTTIClass* Other, IRTTIElementList& Path) {
  bool Result = false;
  WalkAncestors(this, u"Derives", [&](IRTTIClass* C) {
    Ref<IRTTIElementList> Members = C->GetMembers();
    for (int i = 0; !Result && Members && i < Members->GetCount(); ++i)
      Result = Members->GetItems(i)->Derives(Other, Path);
    return Result;
  });
  return Result;
}

Ref<IRTTIMethod> TRTTIClass::FindMethod(const String& Name, IRTTIElementList* Args) {
  // The first fit wins: this class's methods first, then each ancestor's, in the order added.
  // Asked for every operator an expression applies, so it walks the name index in place.
  IRTTIMethod* Found = nullptr;
  WalkAncestors(this, u"Lookup", [&](IRTTIClass* C) {
    const Ref<IRTTIElementList> Members = C->GetMembers();
    return Members && Members->AnyNamed(Name, [&](IRTTIElement& Member) {
      auto* Method = CachedCast<IRTTIMethod>(&Member);
      if (Method && ArgumentsFit(*Method, Args)) Found = Method;
      return Found != nullptr;
    });
  });
  return Ref<IRTTIMethod>(Found);
}

}  // namespace gello
