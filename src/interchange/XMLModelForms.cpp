// The native XML parts of the model kinds: element, scope, package, class, alias, method,
// property, value and literal.
#include "KindForms.h"
#include "gello/model/Class.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"

namespace gello::forms {
namespace {

bool IsTrue(std::string_view Text, bool Default) {
  auto Is = [&](std::string_view Word) {
    if (Text.size() != Word.size()) return false;
    for (std::size_t i = 0; i < Text.size(); ++i)
      if ((Text[i] | 0x20) != Word[i]) return false;
    return true;
  };
  if (Is("true") || Text == "1") return true;
  if (Is("false") || Text == "0") return false;
  return Default;
}

}  // namespace

void WriteElementXML(IRTTIElement& Element, pugi::xml_node Node) {
  SetText(Node, "kind", Element.GetKind());
  if (const String Name = Element.GetName(); !Name.empty()) SetText(Node, "name", Name);
  if (const String Note = Element.GetAnnotation(); !Note.empty()) SetText(Node, "annotation", Note);
}

void ReadElementXML(IRTTIElement& Element, const TElementNode& Node, TReading&) {
  // Most elements were just made under this very name.
  if (const std::string_view Name = Node.Attribute("name"); !SameText(Element.GetName(), Name))
    Element.SetName(FromUTF8(Name));
  Element.SetAnnotation(FromUTF8(Node.Attribute("annotation")));
}

void WriteScopeXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteElementXML(Element, Node);
  auto& Scope = As<IRTTIScope>(Element);
  Node.append_attribute("ownsMembers").set_value(Scope.GetOwnsMembers() ? "true" : "false");
  WriteList(Scope.GetMembers().get(), Node, "members", true);
  Ref<IRTTIElementList> Statements = Scope.GetStatements();
  if (Statements && Statements->GetCount() > 0)
    WriteList(Statements.get(), Node, "statements", true);
}

void ReadScopeXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadElementXML(Element, Node, Reading);
  auto& Scope = As<IRTTIScope>(Element);
  Scope.SetOwnsMembers(IsTrue(Node.Attribute("ownsMembers"), true));
  Scope.SetMembers(LoadList(Scope.GetMembers(), Node.Role("members"), Reading));
  Scope.SetStatements(LoadList(nullptr, Node.Role("statements"), Reading));
}

void WritePackageXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteScopeXML(Element, Node);
  auto& Package = As<IRTTIPackage>(Element);
  WriteList(Package.GetImports().get(), Node, "imports", false);
  WriteSingle(Package.GetMainBlock().get(), Node, "mainblock", false);
}

void ReadPackageXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadScopeXML(Element, Node, Reading);
  // The main block is written for readers of the file, never read back.
  As<IRTTIPackage>(Element).SetImports(LoadList(nullptr, Node.Role("imports"), Reading));
}

void WriteClassXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteScopeXML(Element, Node);
  auto& Class = As<IRTTIClass>(Element);
  SetClassName(Node, "ancestor", Class.GetAncestor().get());
  SetClassName(Node, "elementtype", Class.GetImmediateElementType().get());
  WriteList(Class.GetEnums().get(), Node, "enums", false);
}

void ReadClassXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadScopeXML(Element, Node, Reading);
  auto& Class = As<IRTTIClass>(Element);
  if (const Ref<IRTTIClass>& Ancestor = Reading.ClassNamed(Node.Attribute("ancestor")))
    Class.SetAncestor(Ancestor);
  std::string ElementName(Node.Attribute("elementtype"));
  // Set(Integer) read without an element type has Integer.
  if (ElementName.empty())
    if (auto* Generic = CachedCast<TRTTIClass>(&Element))
      ElementName = ToUTF8(Generic->ExtractElementName());
  if (const Ref<IRTTIClass>& ElementType = Reading.ClassNamed(ElementName))
    Class.SetElementType(ElementType);
  Class.SetEnums(LoadList(nullptr, Node.Role("enums"), Reading));
  Class.SetResolved(true);
}

void WriteClassAliasXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteScopeXML(Element, Node);
  SetClassName(Node, "actualclass", As<TRTTIClassAlias>(Element).GetActualClass().get());
}

void ReadClassAliasXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadScopeXML(Element, Node, Reading);
  As<TRTTIClassAlias>(Element).SetActualClass(Reading.ClassNamed(Node.Attribute("actualclass")));
}

void WriteMethodXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteElementXML(Element, Node);
  auto& Method = As<IRTTIMethod>(Element);
  SetClassName(Node, "type", Method.GetResultType().get());
  WriteList(Method.GetParams().get(), Node, "parameters", true);
  WriteSingle(Method.GetResultValue().get(), Node, "value", false);
}

void ReadMethodXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadElementXML(Element, Node, Reading);
  auto& Method = As<IRTTIMethod>(Element);
  if (const Ref<IRTTIClass>& Type = Reading.ClassNamed(Node.Attribute("type")))
    Method.SetResultType(Type);
  // A new method's own empty list takes the parameters; one that has some gets a fresh list.
  Ref<IRTTIElementList> Params = Method.GetParams();
  if (!Params || Params->GetCount() > 0) Params = MakeRef<TRTTIElementList>();
  Method.SetParams(LoadList(Params, Node.Role("parameters"), Reading));
  Method.SetResultValue(LoadSingle<IRTTIValue>(Node, "value", Reading));
}

void WritePropertyXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteElementXML(Element, Node);
  auto& Property = As<IRTTIProperty>(Element);
  SetClassName(Node, "type", Property.GetPropertyType().get());
  WriteSingle(Property.GetPropertyValue().get(), Node, "value", false);
}

void ReadPropertyXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadElementXML(Element, Node, Reading);
  auto& Property = As<IRTTIProperty>(Element);
  if (const Ref<IRTTIClass>& Type = Reading.ClassNamed(Node.Attribute("type")))
    Property.SetPropertyType(Type);
  Property.SetPropertyValue(LoadSingle<IRTTIValue>(Node, "value", Reading));
}

void WriteValueXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteElementXML(Element, Node);
  SetClassName(Node, "type", As<IRTTIValue>(Element).GetValueType().get());
}

void ReadValueXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadElementXML(Element, Node, Reading);
  auto& Value = As<IRTTIValue>(Element);
  const std::string_view TypeName = Node.Attribute("type");
  // A node made with its type already keeps that type object; only its name is ever written.
  if (Ref<IRTTIClass> Type = Value.GetValueType()) {
    if (!TypeName.empty()) Type->SetName(FromUTF8(TypeName));
  } else {
    Value.SetValueType(Reading.ClassNamed(TypeName));
  }
}

void WriteLiteralXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  SetText(Node, "value", As<IRTTILiteral>(Element).GetasString());
}

void ReadLiteralXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  As<IRTTILiteral>(Element).SetasString(FromUTF8(Node.Attribute("value")));
}

}  // namespace gello::forms
