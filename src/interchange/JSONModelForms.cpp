// The JSON parts of the model kinds and the navigation nodes. Kept asymmetries: "annotation" is
// read but not written, a method's "value" is written but not read, only packages carry their
// statements, and a call or property reference reads back as a plain value.
#include "KindForms.h"
#include "gello/expr/Navigation.h"
#include "gello/interchange/JSONForm.h"
#include "gello/model/ElementList.h"

namespace gello::forms {
namespace {

using TType = TJSON::value_t;

void SetClassName(TJSON& Value, const char* Key, IRTTIClass* Class) {
  if (Class) Value[Key] = ToUTF8(Class->GetName());
}

// A new list filled from the array under Key, or Current when the key is absent.
Ref<IRTTIElementList> NewList(const TJSON& Value, const char* Key,
                              const Ref<IRTTIElementList>& Current) {
  if (!HasKey(Value, Key, TType::array)) return Current;
  auto List = MakeRef<TRTTIElementList>();
  SetasJSON(*List, Value[Key]);
  return List;
}

}  // namespace

void GetElementJSON(IRTTIElement& Element, TJSON& Value) {
  Value["name"] = ToUTF8(Element.GetName());
  Value["kind"] = ToUTF8(Element.GetKind());
}

void SetElementJSON(IRTTIElement& Element, const TJSON& Value) {
  if (HasKey(Value, "name", TType::string)) Element.SetName(JSONText(Value, "name"));
  if (HasKey(Value, "annotation", TType::string))
    Element.SetAnnotation(JSONText(Value, "annotation"));
}

void GetScopeJSON(IRTTIElement& Element, TJSON& Value) {
  GetElementJSON(Element, Value);
  auto& Scope = As<IRTTIScope>(Element);
  Value["ownsMembers"] = Scope.GetOwnsMembers();
  Value["members"] = GetasJSON(*Scope.GetMembers());
}

void SetScopeJSON(IRTTIElement& Element, const TJSON& Value) {
  SetElementJSON(Element, Value);
  auto& Scope = As<IRTTIScope>(Element);
  if (HasKey(Value, "ownsMembers", TType::boolean))
    Scope.SetOwnsMembers(Value["ownsMembers"].get<bool>());
  if (HasKey(Value, "members", TType::array)) SetasJSON(*Scope.GetMembers(), Value["members"]);
}

void GetPackageJSON(IRTTIElement& Element, TJSON& Value) {
  GetScopeJSON(Element, Value);
  auto& Package = As<IRTTIPackage>(Element);
  if (Ref<IRTTIElementList> Imports = Package.GetImports()) Value["imports"] = GetasJSON(*Imports);
  Ref<IRTTIElementList> Statements = Package.GetStatements();
  if (Statements && Statements->GetCount() > 0) Value["statements"] = GetasJSON(*Statements);
}

void SetPackageJSON(IRTTIElement& Element, const TJSON& Value) {
  SetScopeJSON(Element, Value);
  auto& Package = As<IRTTIPackage>(Element);
  Package.SetImports(NewList(Value, "imports", Package.GetImports()));
  Package.SetStatements(NewList(Value, "statements", Package.GetStatements()));
}

void GetClassJSON(IRTTIElement& Element, TJSON& Value) {
  GetScopeJSON(Element, Value);
  auto& Class = As<IRTTIClass>(Element);
  SetClassName(Value, "ancestor", Class.GetAncestor().get());
  SetClassName(Value, "elementtype", Class.GetImmediateElementType().get());
}

void SetClassJSON(IRTTIElement& Element, const TJSON& Value) {
  SetScopeJSON(Element, Value);
  auto& Class = As<IRTTIClass>(Element);
  if (Ref<IRTTIClass> Ancestor = JSONClass(Value, "ancestor")) Class.SetAncestor(Ancestor);
  if (Ref<IRTTIClass> ElementType = JSONClass(Value, "elementtype"))
    Class.SetElementType(ElementType);
}

void GetMethodJSON(IRTTIElement& Element, TJSON& Value) {
  GetElementJSON(Element, Value);
  auto& Method = As<IRTTIMethod>(Element);
  SetClassName(Value, "type", Method.GetResultType().get());
  Ref<IRTTIElementList> Params = Method.GetParams();
  Value["params"] = Params ? GetasJSON(*Params) : TJSON::array();
  if (Ref<IRTTIValue> Result = Method.GetResultValue()) Value["value"] = GetasJSON(*Result);
}

void SetMethodJSON(IRTTIElement& Element, const TJSON& Value) {
  SetElementJSON(Element, Value);
  auto& Method = As<IRTTIMethod>(Element);
  if (HasKey(Value, "params", TType::array)) {
    if (!Method.GetParams()) Method.SetParams(MakeRef<TRTTIElementList>());
    SetasJSON(*Method.GetParams(), Value["params"]);
  }
  if (Ref<IRTTIClass> Type = JSONClass(Value, "type")) Method.SetResultType(Type);
}

void GetPropertyJSON(IRTTIElement& Element, TJSON& Value) {
  GetElementJSON(Element, Value);
  auto& Property = As<IRTTIProperty>(Element);
  SetClassName(Value, "type", Property.GetPropertyType().get());
  if (Ref<IRTTIValue> Initial = Property.GetPropertyValue()) Value["value"] = GetasJSON(*Initial);
}

void SetPropertyJSON(IRTTIElement& Element, const TJSON& Value) {
  SetElementJSON(Element, Value);
  auto& Property = As<IRTTIProperty>(Element);
  if (Ref<IRTTIClass> Type = JSONClass(Value, "type")) Property.SetPropertyType(Type);
  if (HasKey(Value, "value", TType::object))
    Property.SetPropertyValue(InRole<IRTTIValue>(LoadFromJSONValue(Value["value"]), "value"));
}

void GetValueJSON(IRTTIElement& Element, TJSON& Value) {
  GetElementJSON(Element, Value);
  SetClassName(Value, "type", As<IRTTIValue>(Element).GetValueType().get());
}

void SetValueJSON(IRTTIElement& Element, const TJSON& Value) {
  SetElementJSON(Element, Value);
  if (Ref<IRTTIClass> Type = JSONClass(Value, "type")) As<IRTTIValue>(Element).SetValueType(Type);
}

void GetLiteralJSON(IRTTIElement& Element, TJSON& Value) {
  GetValueJSON(Element, Value);
  Value["value"] = ToUTF8(As<IRTTILiteral>(Element).GetasString());
}

void SetLiteralJSON(IRTTIElement& Element, const TJSON& Value) {
  SetValueJSON(Element, Value);
  if (HasKey(Value, "value", TType::string))
    As<IRTTILiteral>(Element).SetasString(JSONText(Value, "value"));
}

void GetMethodCallJSON(IRTTIElement& Element, TJSON& Value) {
  GetValueJSON(Element, Value);
  auto& Call = As<TRTTIMethodCall>(Element);
  if (Ref<IRTTIValue> ClassRef = Call.Getclassref()) {
    Value["classref"] = GetasJSON(*ClassRef);
    // Only a call with a receiver keeps its arguments in this form.
    Ref<IRTTIElementList> Params = Call.Getparams();
    Value["params"] = Params ? GetasJSON(*Params) : TJSON::array();
  }
}

void GetPropertyRefJSON(IRTTIElement& Element, TJSON& Value) {
  GetValueJSON(Element, Value);
  if (Ref<IRTTIValue> ClassRef = As<TRTTIPropertyRef>(Element).Getclassref())
    Value["classref"] = GetasJSON(*ClassRef);
}

}  // namespace gello::forms
