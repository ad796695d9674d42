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

TRTTIElement::TRTTIElement(const String& Name) : FName(Name) {}

TRTTIElement::~TRTTIElement() {
  TRTTIElement::Clear();
}

void TRTTIElement::SetName(const String& Value) {
  // Names are write-once: lists index an element by the name it had when added.
  GELLO_ASSERT(FName.empty() || FName == Value,
               u"Reassigning element.name from " + FName + u" to " + Value);
  FName = Value;
}

GUID TRTTIElement::GetGUID() {
  if (IsNullGUID(FGUID)) {
    FGUID = GUID::Create();
    ++Epoch;
  }
  return FGUID;
}

String TRTTIElement::GetUML_ID() {
  if (FUML_ID.empty()) FUML_ID = UMLIdOf(GetGUID());
  return FUML_ID;
}

void TRTTIElement::SetUML_ID(const String& Value) {
  FUML_ID = Value;
  ++Epoch;
}

String TRTTIElement::PeekUML_ID() const {
  if (!FUML_ID.empty() || IsNullGUID(FGUID)) return FUML_ID;
  return UMLIdOf(FGUID);
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
  FDebugInfo = nullptr;
}

Ref<IRTTIClass> ResolveClass(const Ref<IRTTIClass>& Class, IRTTIScope* Scope) {
  if (!Class || !Scope) return Class;
  Ref<IRTTIClass> Found = Scope->Lookup<IRTTIClass>(Class->GetName());
  return Found ? Found : Class;
}

}  // namespace gello
