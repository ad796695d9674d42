#include "gello/model/Element.h"

#include "gello/foundation/Exceptions.h"

namespace gello {

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
  if (IsNullGUID(FGUID)) FGUID = GUID::Create();
  return FGUID;
}

String TRTTIElement::GetUML_ID() {
  if (FUML_ID.empty()) {
    // "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}" becomes "QX_XXXXXXXX_XXXX_XXXX_XXXX_XXXXXXXXXXXX".
    String Text = GetGUID().ToString();
    Text = Text.substr(1, Text.size() - 2);
    for (char16_t& C : Text)
      if (C == u'-') C = u'_';
    FUML_ID = u"QX_" + Text;
  }
  return FUML_ID;
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
