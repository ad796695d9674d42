#include "gello/model/Globals.h"

#include "gello/model/Class.h"
#include "gello/model/Generic.h"

namespace gello {
namespace {

// A built-in class whose kind is not its ancestor's.
const Ref<IRTTIClass>& OfKind(const Ref<IRTTIClass>& Class, TRTTIClassKind Kind) {
  Class->SetClassKind(Kind);
  return Class;
}

}  // namespace

TRTTIGlobals::TRTTIGlobals() : TRTTIPackage(u"Globals") {
  FSystem = MakeRef<TRTTIPackage>(u"System");
  AddMember(FSystem);
  FT = MakeRef<TRTTIGeneric>(u"T");
  FSystem->AddMember(FT);
  FUndefined = MakeClass(u"_Undefined_", nullptr, u"OCLUndefined");
  FUntyped = MakeClass(u"_Untyped_", nullptr, u"OCLUndefined");
  FAny = OfKind(MakeClass(u"Any", nullptr, u"OCLAny"), rtti_class);
  FReal = OfKind(MakeClass(u"Real", FAny, u"OCLReal"), rtti_real);
  FString = OfKind(MakeClass(u"String", FAny, u"OCLString"), rtti_string);
  FBoolean = OfKind(MakeClass(u"Boolean", FAny, u"OCLBoolean"), rtti_boolean);
  FInteger = OfKind(MakeClass(u"Integer", FReal, u"OCLInteger"), rtti_integer);
  // Collection(T) keeps Any's kind: only the concrete collections are marked as collections.
  FCollection = MakeCollection(u"Collection(T)", FAny, u"OCLCollection", FT);
  FSet = OfKind(MakeCollection(u"Set(T)", FCollection, u"OCLSet", FT), rtti_set);
  FBag = OfKind(MakeCollection(u"Bag(T)", FCollection, u"OCLBag", FT), rtti_bag);
  FSequence =
      OfKind(MakeCollection(u"Sequence(T)", FCollection, u"OCLSequence", FT), rtti_sequence);
  FTuple = MakeClass(u"Tuple", FAny, u"OCLTuple");
  FTuple->SetIsTuple(true);
}

TRTTIGlobals::~TRTTIGlobals() {
  TRTTIGlobals::Clear();
}

Ref<IRTTIClass> TRTTIGlobals::MakeClass(const String& Name, const Ref<IRTTIClass>& Ancestor,
                                        const String& HostClassName) {
  return MakeCollection(Name, Ancestor, HostClassName, nullptr);
}

Ref<IRTTIClass> TRTTIGlobals::MakeCollection(const String& Name, const Ref<IRTTIClass>& Ancestor,
                                             const String& HostClassName,
                                             const Ref<IRTTIClass>& ElementType) {
  auto Class = MakeRef<TRTTIClass>(Name, Ancestor, ElementType);
  Class->SetHostClassName(HostClassName);
  FSystem->AddMember(Class);
  return Class;
}

Ref<IRTTIPackage> TRTTIGlobals::Get_Main() {
  if (!FMain) {
    FMain = MakeRef<TRTTIPackage>(u"Main");
    AddMember(FMain);
  }
  return FMain;
}

Ref<IRTTIClass> TRTTIGlobals::BuildClass(const String& Name) {
  if (Name.empty()) return nullptr;
  Ref<IRTTIClass> Found = FindClass(Name);
  return Found ? Found : BuildClassRef(Name);
}

Ref<IRTTIClass> TRTTIGlobals::BuildCollection(const String& CollectionName,
                                              const String& ElementName) {
  // Nothing is cached: without a class of the full name each call makes a new placeholder.
  Ref<IRTTIClass> Result = BuildClass(CollectionName + u"(" + ElementName + u")");
  Result->SetAncestor(BuildClass(CollectionName));
  Result->SetElementType(BuildClass(ElementName));
  return Result;
}

Ref<IRTTIElement> TRTTIGlobals::Lookup(const String& Name, const GUID& InterfaceId) {
  if (Ref<IRTTIElement> Found = Find(Name, InterfaceId)) return Found;
  Ref<IRTTIElementList> Members = GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i) {
    auto Scope = DynCast<IRTTIScope>(Members->GetItems(i));
    if (!Scope || Scope.get() == static_cast<IRTTIScope*>(this)) continue;
    if (Ref<IRTTIElement> Found = Scope->Find(Name, InterfaceId)) return Found;
  }
  return nullptr;
}

void TRTTIGlobals::Clear() {
  FT = FUndefined = FUntyped = FAny = FReal = FString = FBoolean = FInteger = nullptr;
  FCollection = FSet = FBag = FSequence = FTuple = nullptr;
  FSystem = FMain = FPackageScope = nullptr;
  TRTTIPackage::Clear();
}

}  // namespace gello
