#include "ModelSummary.h"

#include <map>
#include <string>
#include <vector>

#include "gello/expr/ControlNodes.h"
#include "gello/expr/Navigation.h"
#include "gello/model/ClassAlias.h"
#include "gello/model/ElementList.h"
#include "gello/model/Property.h"

namespace gello::tool {
namespace {

struct TCounts {
  int Classes = 0, Enumerations = 0, Aliases = 0, Properties = 0, Methods = 0;
  std::map<std::string, int> Nodes;  // expression nodes by kind
};

std::string Name(IRTTIElement* Element) {
  return Element ? ToUTF8(Element->GetName()) : std::string("?");
}

void CountNodes(IRTTIElement* Node, TCounts& Counts);

void CountList(IRTTIElementList* List, TCounts& Counts) {
  for (int i = 0; List && i < List->GetCount(); ++i)
    CountNodes(List->GetItems(i).get(), Counts);
}

// Every node of an expression tree, by kind; a variable counts by its initial value.
void CountNodes(IRTTIElement* Node, TCounts& Counts) {
  if (auto* Variable = NodeDynCast<TRTTIProperty>(Node))
    return CountNodes(Variable->GetPropertyValue().get(), Counts);
  if (!Node) return;
  ++Counts.Nodes[ToUTF8(Node->GetKind())];
  switch (Node->GetNodeKind()) {
    case TRTTINodeKind::MethodCall: {
      auto& Call = *CachedCast<TRTTIMethodCall>(Node);
      CountNodes(Call.Getclassref().get(), Counts);
      return CountList(Call.Getparams().get(), Counts);
    }
    case TRTTINodeKind::PropertyRef:
      return CountNodes(CachedCast<TRTTIPropertyRef>(Node)->Getclassref().get(), Counts);
    case TRTTINodeKind::CollectionMethod: {
      auto& Iteration = *CachedCast<TRTTICollectionMethod>(Node);
      CountNodes(Iteration.Getclassref().get(), Counts);
      CountNodes(Iteration.Getaccum().get(), Counts);
      return CountList(Iteration.Getparams().get(), Counts);
    }
    case TRTTINodeKind::Conditional: {
      auto& Conditional = *CachedCast<TRTTIConditional>(Node);
      CountNodes(Conditional.GetCondition().get(), Counts);
      CountNodes(Conditional.GetThenPart().get(), Counts);
      return CountNodes(Conditional.GetElsePart().get(), Counts);
    }
    case TRTTINodeKind::Statements: {
      auto& Block = *CachedCast<TRTTIStatements>(Node);
      CountList(Block.GetDeclaratives().get(), Counts);
      return CountNodes(Block.GetReturnValue().get(), Counts);
    }
    case TRTTINodeKind::TupleValue:
      return CountList(CachedCast<TRTTITupleValue>(Node)->GetValues().get(), Counts);
    case TRTTINodeKind::CollectionValue:
      return CountList(CachedCast<TRTTICollectionValue>(Node)->GetElements().get(), Counts);
    case TRTTINodeKind::Pragma:
      return CountList(CachedCast<TRTTIPragma>(Node)->Getpragmas().get(), Counts);
    default:
      return;
  }
}

template <class F>
void ForEachMember(IRTTIScope& Scope, F Visit) {
  Ref<IRTTIElementList> Members = Scope.GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    Visit(Members->GetItems(i));
}

std::string Describe(IRTTIClass& Class, TCounts& Counts) {
  if (auto* Alias = CachedCast<TRTTIClassAlias>(&Class)) {
    ++Counts.Aliases;
    return "alias of " + Name(Alias->GetActualClass().get());
  }
  ++Counts.Classes;
  if (Ref<IRTTIElementList> Enums = Class.GetEnums()) {
    ++Counts.Enumerations;
    std::string Text = "enumeration of";
    for (int i = 0; i < Enums->GetCount(); ++i)
      Text += " " + Name(Enums->GetItems(i).get());
    return Text;
  }
  int Properties = 0, Methods = 0;
  ForEachMember(Class, [&](const Ref<IRTTIElement>& Member) {
    if (auto Property = DynCast<IRTTIProperty>(Member)) {
      ++Properties;
      CountNodes(Property->GetPropertyValue().get(), Counts);
    } else if (auto Method = DynCast<IRTTIMethod>(Member)) {
      ++Methods;
      CountNodes(Method->GetResultValue().get(), Counts);
    }
  });
  Counts.Properties += Properties;
  Counts.Methods += Methods;
  std::string Text =
      std::to_string(Properties) + " properties, " + std::to_string(Methods) + " methods";
  if (Ref<IRTTIClass> Ancestor = Class.GetAncestor()) Text += ", ancestor " + Name(Ancestor.get());
  if (Ref<IRTTIClass> Element = Class.GetImmediateElementType())
    Text += ", elements " + Name(Element.get());
  return Text;
}

void PrintPackage(IRTTIPackage& Package, std::ostream& Out) {
  TCounts Counts;
  std::vector<std::string> Lines;
  std::vector<Ref<IRTTIPackage>> Nested;
  ForEachMember(Package, [&](const Ref<IRTTIElement>& Member) {
    if (auto Class = DynCast<IRTTIClass>(Member))
      Lines.push_back("  " + Name(Member.get()) + ": " + Describe(*Class, Counts));
    else if (auto Inner = DynCast<IRTTIPackage>(Member))
      Nested.push_back(Inner);
  });
  int Nodes = 0;
  for (const auto& [Kind, Count] : Counts.Nodes)
    Nodes += Count;
  Out << "Package " << Name(&Package) << ": " << Counts.Classes
      << " classes (enumerations: " << Counts.Enumerations << ", aliases: " << Counts.Aliases
      << "), " << Counts.Properties << " properties, " << Counts.Methods << " methods, " << Nodes
      << " expression nodes\n";
  for (const std::string& Line : Lines)
    Out << Line << '\n';
  if (Nodes > 0) {
    Out << "  expression nodes:";
    for (const auto& [Kind, Count] : Counts.Nodes)
      Out << ' ' << Kind << ' ' << Count;
    Out << '\n';
  }
  for (const Ref<IRTTIPackage>& Inner : Nested)
    PrintPackage(*Inner, Out);
}

// Whether a loaded package holds this very class.
bool Defined(IRTTIClass* Class, IRTTIScope& Scope) {
  bool Found = false;
  ForEachMember(Scope, [&](const Ref<IRTTIElement>& Member) {
    if (auto Package = DynCast<IRTTIPackage>(Member))
      Found = Found || Package->FindClass(Class->GetName()).get() == Class;
  });
  return Found;
}

// The classes the package's declarations refer to that no loaded package holds: placeholders
// made while reading that resolving could not bind (anonymous tuple types aside).
std::vector<std::string> Unresolved(IRTTIPackage& Package, IRTTIGlobals& Globals) {
  auto Classes = MakeRef<TRTTIElementList>();
  Package.WalkClasses(*Classes);
  std::vector<std::string> Names;
  for (int i = 0; i < Classes->GetCount(); ++i) {
    auto Class = DynCast<IRTTIClass>(Classes->GetItems(i));
    if (Class && !Class->GetIsTuple() && !Defined(Class.get(), Globals))
      Names.push_back(Name(Class.get()));
  }
  return Names;
}

}  // namespace

void PrintSummary(IRTTIPackage& Package, IRTTIGlobals& Globals, std::ostream& Out) {
  PrintPackage(Package, Out);
  const std::vector<std::string> Names = Unresolved(Package, Globals);
  Out << "Placeholder classes that did not resolve:";
  if (Names.empty()) Out << " none";
  for (const std::string& Placeholder : Names)
    Out << ' ' << Placeholder;
  Out << '\n';
}

}  // namespace gello::tool
