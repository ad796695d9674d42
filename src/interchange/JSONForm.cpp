// Dispatch of the JSON form by kind, element lists as arrays, and the shared key readers.
#include "gello/interchange/JSONForm.h"

#include "KindForms.h"
#include "gello/model/Class.h"
#include "gello/model/ElementRegistry.h"

namespace gello {
namespace forms {

bool HasKey(const TJSON& Value, const char* Key, TJSON::value_t Type) {
  if (!Value.is_object()) return false;
  auto Found = Value.find(Key);
  return Found != Value.end() && Found->type() == Type;
}

String JSONText(const TJSON& Value, const char* Key) {
  if (!HasKey(Value, Key, TJSON::value_t::string)) return {};
  return FromUTF8(Value[Key].get_ref<const std::string&>());
}

Ref<IRTTIClass> JSONClass(const TJSON& Value, const char* Key) {
  const String Name = JSONText(Value, Key);
  return Name.empty() ? nullptr : BuildClassRef(Name);
}

}  // namespace forms

TJSON GetasJSON(IRTTIElement& Element) {
  TJSON Value = TJSON::object();
  forms::FormOf(Element).GetJSON(Element, Value);
  return Value;
}

void SetasJSON(IRTTIElement& Element, const TJSON& Value) {
  forms::FormOf(Element).SetJSON(Element, Value);
}

Ref<IRTTIElement> LoadFromJSONValue(const TJSON& Value) {
  Ref<IRTTIElement> Element =
      CreateForReader(forms::JSONText(Value, "kind"), forms::JSONText(Value, "name"));
  if (Element) SetasJSON(*Element, Value);
  return Element;
}

TJSON GetasJSON(IRTTIElementList& List) {
  TJSON Items = TJSON::array();
  for (int i = 0; i < List.GetCount(); ++i)
    Items.push_back(GetasJSON(*List.GetItems(i)));
  return Items;
}

void SetasJSON(IRTTIElementList& List, const TJSON& Value) {
  if (!Value.is_array()) return;
  for (const TJSON& Item : Value) {
    const String Name = forms::JSONText(Item, "name");
    Ref<IRTTIElement> Element = List.GetItemByName(Name);
    if (!Element) {
      Element = CreateForReader(forms::JSONText(Item, "kind"), Name);
      List.Add(Element);
    }
    SetasJSON(*Element, Item);
  }
}

}  // namespace gello
