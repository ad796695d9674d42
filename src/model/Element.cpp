#include "gello/model/Element.h"

#include <atomic>

#include "gello/foundation/Exceptions.h"

namespace gello {
namespace {
std::atomic<std::uint64_t> Epoch{0};

// The id made from a GUID: "{XXXXXXXX-XXXX-...}" becomes "QX_XXXXXXXX_XXXX_...".
String UMLIdOf(const GUID& Id) {
  String Text = Id.ToString();
  Text = Text.substr(1, Text.size() - 2);
  for (char16_t& C : Text)
    if (C == u'-') C = u'_';
  return u"QX_" + Text;
}
}  // namespace

std::uint64_t UMLIdEpoch() {
  return Epoch.load();
}

TRTTIElement::TRTTIElement(String Name) : FName(std::move(Name)) {}

TRTTIElement::~TRTTIElement() {
  TRTTIElement::Clear();
}

TRTTIElement::TExtras& TRTTIElement::Extras() {
  if (!FExtras) FExtras = std::make_unique<TExtras>();
  return *FExtras;
}

String TRTTIElement::GetAnnotation() const {
  return FExtras ? FExtras->Annotation : String();
}

void TRTTIElement::SetAnnotation(const String& Value) {
  if (FExtras || !Value.empty()) Extras().Annotation = Value;
}

Ref<IRTTIDebugInfo> TRTTIElement::GetDebugInfo() const {
  return FExtras ? FExtras->DebugInfo : nullptr;
}

void TRTTIElement::SetDebugInfo(const Ref<IRTTIDebugInfo>& Value) {
  if (FExtras || Value) Extras().DebugInfo = Value;
}

void TRTTIElement::SetName(const String& Value) {
  // Names are write-once: lists index an element by the name it had when added.
  GELLO_ASSERT(FName.empty() || FName == Value,
               u"Reassigning element.name from " + FName + u" to " + Value);
  FName = Value;
}

GUID TRTTIElement::GetGUID() {
  GUID& Id = Extras().Id;
  if (IsNullGUID(Id)) {
    Id = GUID::Create();
    ++Epoch;
  }
  return Id;
}

String TRTTIElement::GetUML_ID() {
  String& Own = Extras().UML_ID;
  if (Own.empty()) Own = UMLIdOf(GetGUID());
  return Own;
}

void TRTTIElement::SetUML_ID(const String& Value) {
  Extras().UML_ID = Value;
  ++Epoch;
}

String TRTTIElement::PeekUML_ID() const {
  if (!FExtras) return String();
  if (!FExtras->UML_ID.empty() || IsNullGUID(FExtras->Id)) return FExtras->UML_ID;
  return UMLIdOf(FExtras->Id);
}

void TRTTIElement::Resolve(IRTTIScope*) {
  SetResolved(true);
}

bool TRTTIElement::Compatible(IRTTIClass*) {
  return false;
}

bool TRTTIElement::Derives(IRTTIClass*, IRTTIElementList&) {
  return false;
}

void TRTTIElement::WalkClasses(IRTTIElementList&) {}

void TRTTIElement::Clear() {
  if (FExtras) FExtras->DebugInfo = nullptr;
}

Ref<IRTTIClass> ResolveClass(const Ref<IRTTIClass>& Class, IRTTIScope* Scope) {
  if (!Class || !Scope) return Class;
  Ref<IRTTIClass> Found = Scope->Lookup<IRTTIClass>(Class->GetName());
  return Found ? Found : Class;
}

}  // namespace gello
