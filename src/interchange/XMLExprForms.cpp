// The native XML parts of the expression nodes: calls, property references, collection
// methods, conditionals, statement blocks, tuple and collection literals and pragmas.
#include "KindForms.h"
#include "gello/expr/ControlNodes.h"
#include "gello/expr/Navigation.h"
#include "gello/model/Class.h"
#include "gello/model/Property.h"

namespace gello::forms {
namespace {

// Parameters are written only when there are some: a call read without them has an empty list,
// and must write as it was read.
IRTTIElementList* Params(const Ref<IRTTIElementList>& List) {
  return List && List->GetCount() > 0 ? List.get() : nullptr;
}

// The tuple type rebuilt from its values: one part per value, named and typed by it (Any for
// a value without a type).
Ref<IRTTIClass> TupleOf(IRTTIElementList& Values, IRTTIGlobals* Globals) {
  auto Tuple = MakeRef<TRTTIClass>(u"Tuple", Globals ? Globals->Get_Tuple() : nullptr);
  Tuple->SetIsTuple(true);
  for (int i = 0; i < Values.GetCount(); ++i) {
    Ref<IRTTIElement> Value = Values.GetItems(i);
    auto Part = MakeRef<TRTTIProperty>(Value->GetName());
    auto Typed = DynCast<IRTTIValue>(Value);
    Ref<IRTTIClass> Type = Typed ? Typed->GetValueType() : nullptr;
    Part->SetPropertyType(Type || !Globals ? Type : Globals->Get_Any());
    Tuple->AddMember(Part);
  }
  return Tuple;
}

}  // namespace

void WriteMethodCallXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  auto& Call = As<TRTTIMethodCall>(Element);
  WriteSingle(Call.Getclassref().get(), Node, "classref", true);
  WriteList(Params(Call.Getparams()), Node, "params", false);
}

void ReadMethodCallXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  auto& Call = As<TRTTIMethodCall>(Element);
  Call.Setclassref(LoadSingle<IRTTIValue>(Node, "classref", Reading));
  Call.Setparams(LoadFreshList(Node, "params", Reading));
}

void WritePropertyRefXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  WriteSingle(As<TRTTIPropertyRef>(Element).Getclassref().get(), Node, "classref", false);
}

void ReadPropertyRefXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  As<TRTTIPropertyRef>(Element).Setclassref(LoadSingle<IRTTIValue>(Node, "classref", Reading));
}

void WriteCollectionMethodXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  auto& Method = As<TRTTICollectionMethod>(Element);
  WriteSingle(Method.Getiterator().get(), Node, "iterator", false);
  WriteSingle(Method.Getaccum().get(), Node, "accum", false);
  WriteSingle(Method.Getclassref().get(), Node, "classref", true);
  WriteList(Params(Method.Getparams()), Node, "params", false);
}

void ReadCollectionMethodXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  auto& Method = As<TRTTICollectionMethod>(Element);
  Method.Setiterator(LoadSingle<IRTTIProperty>(Node, "iterator", Reading));
  Method.Setaccum(LoadSingle<IRTTIProperty>(Node, "accum", Reading));
  Method.Setclassref(LoadSingle<IRTTIValue>(Node, "classref", Reading));
  Method.Setparams(LoadFreshList(Node, "params", Reading));
}

void WriteConditionalXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  auto& Conditional = As<TRTTIConditional>(Element);
  GELLO_ASSERT(Conditional.GetCondition() && Conditional.GetThenPart() && Conditional.GetElsePart(),
               u"Assertion failure");
  WriteSingle(Conditional.GetCondition().get(), Node, "condition", true);
  WriteSingle(Conditional.GetThenPart().get(), Node, "thenpart", true);
  WriteSingle(Conditional.GetElsePart().get(), Node, "elsepart", true);
}

void ReadConditionalXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  auto& Conditional = As<TRTTIConditional>(Element);
  Conditional.SetCondition(LoadSingle<IRTTIValue>(Node, "condition", Reading));
  Conditional.SetThenPart(LoadSingle<IRTTIValue>(Node, "thenpart", Reading));
  Conditional.SetElsePart(LoadSingle<IRTTIValue>(Node, "elsepart", Reading));
}

void WriteStatementsXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  auto& Block = As<TRTTIStatements>(Element);
  WriteList(Block.GetDeclaratives().get(), Node, "declaratives", true);
  WriteSingle(Block.GetReturnValue().get(), Node, "returnvalue", false);
}

void ReadStatementsXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  auto& Block = As<TRTTIStatements>(Element);
  Block.SetDeclaratives(LoadFreshList(Node, "declaratives", Reading));
  Block.SetReturnValue(LoadSingle<IRTTIValue>(Node, "returnvalue", Reading));
}

void WriteTupleValueXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  WriteList(As<TRTTITupleValue>(Element).GetValues().get(), Node, "values", true);
}

void ReadTupleValueXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  auto& Tuple = As<TRTTITupleValue>(Element);
  Tuple.SetValues(LoadFreshList(Node, "values", Reading));
  Tuple.SetValueType(TupleOf(*Tuple.GetValues(), Reading.Globals()));
}

void WriteCollectionValueXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  WriteList(As<TRTTICollectionValue>(Element).GetElements().get(), Node, "elements", true);
}

void ReadCollectionValueXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  As<TRTTICollectionValue>(Element).SetElements(LoadFreshList(Node, "elements", Reading));
}

void WritePragmaXML(IRTTIElement& Element, pugi::xml_node Node) {
  WriteValueXML(Element, Node);
  auto& Pragma = As<TRTTIPragma>(Element);
  SetText(Node, "directive", Pragma.Getdirective());
  WriteList(Pragma.Getpragmas().get(), Node, "pragmas", true);
}

void ReadPragmaXML(IRTTIElement& Element, const TElementNode& Node, TReading& Reading) {
  ReadValueXML(Element, Node, Reading);
  auto& Pragma = As<TRTTIPragma>(Element);
  Pragma.Setdirective(FromUTF8(Node.Attribute("directive")));
  Pragma.Setpragmas(LoadFreshList(Node, "pragmas", Reading));
}

}  // namespace gello::forms
