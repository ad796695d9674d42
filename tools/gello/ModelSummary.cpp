#include "ModelSummary.h"

#include <map>
#include <string>
#include <vector>

#include "gello/expr/ControlNodes.h"
#include "gello/expr/Navigation.h"
#include "gello/model/ClassAlias.h"

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
  if (auto* Variable = dynamic_cast<IRTTIProperty*>(Node))
    return CountNodes(Variable->GetPropertyValue().get(), Counts);
  if (!Node) return;
  ++Counts.Nodes[ToUTF8(Node->GetKind())];
  if (auto* Call = dynamic_cast<TRTTIMethodCall*>(Node)) {
    CountNodes(Call->Getclassref().get(), Counts);
    CountList(Call->Getparams().get(), Counts);
  } else if (auto* Ref = dynamic_cast<TRTTIPropertyRef*>(Node)) {
    CountNodes(Ref->Getclassref().get(), Counts);
  } else if (auto* Iteration = dynamic_cast<TRTTICollectionMethod*>(Node)) {
    CountNodes(Iteration->Getclassref().get(), Counts);
    CountNodes(Iteration->Getaccum().get(), Counts);
    CountList(Iteration->Getparams().get(), Counts);
  } else if (auto* Conditional = dynamic_cast<TRTTIConditional*>(Node)) {
    CountNodes(Conditional->GetCondition().get(), Counts);
    CountNodes(Conditional->GetThenPart().get(), Counts);
    CountNodes(Conditional->GetElsePart().get(), Counts);
  } else if (auto* Block = dynamic_cast<TRTTIStatements*>(Node)) {
    CountList(Block->GetDeclaratives().get(), Counts);
    CountNodes(Block->GetReturnValue().get(), Counts);
  } else if (auto* Tuple = dynamic_cast<TRTTITupleValue*>(Node)) {
    CountList(Tuple->GetValues().get(), Counts);
  } else if (auto* Collection = dynamic_cast<TRTTICollectionValue*>(Node)) {
    CountList(Collection->GetElements().get(), Counts);
  } else if (auto* Pragma = dynamic_cast<TRTTIPragma*>(Node)) {
    CountList(Pragma->Getpragmas().get(), Counts);
  }
}

template <class F>
void ForEachMember(IRTTIScope& Scope, F Visit) {
  Ref<IRTTIElementList> Members = Scope.GetMembers();
  for (int i = 0; Members && i < Members->GetCount(); ++i)
    Visit(Members->GetItems(i));
}

std::string Describe(IRTTIClass& Class, TCounts& Counts) {
  if (auto* Alias = dynamic_cast<TRTTIClassAlias*>(&Class)) {
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
  Out << "Package " << Name(&Package) << ": " << Counts.Classes << " classes ("
      << Counts.Enumerations << " enumerations, " << Counts.Aliases << " aliases), "
      << Counts.Properties << " properties, " << Counts.Methods << " methods, " << Nodes
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

// Placeholders are the classes that reading added to the global scope itself; one resolves
// when some loaded package defines its name.
std::vector<std::string> Unresolved(IRTTIGlobals& Globals) {
  std::vector<Ref<IRTTIPackage>> Packages;
  std::vector<Ref<IRTTIClass>> Placeholders;
  ForEachMember(Globals, [&](const Ref<IRTTIElement>& Member) {
    if (auto Package = DynCast<IRTTIPackage>(Member))
      Packages.push_back(Package);
    else if (auto Class = DynCast<IRTTIClass>(Member))
      Placeholders.push_back(Class);
  });
  std::vector<std::string> Names;
  for (const Ref<IRTTIClass>& Placeholder : Placeholders) {
    bool Defined = false;
    for (const Ref<IRTTIPackage>& Package : Packages)
      Defined = Defined || Package->FindClass(Placeholder->GetName());
    if (!Defined) Names.push_back(Name(Placeholder.get()));
  }
  return Names;
}

}  // namespace

void PrintSummary(IRTTIPackage& Package, IRTTIGlobals& Globals, std::ostream& Out) {
  PrintPackage(Package, Out);
  const std::vector<std::string> Names = Unresolved(Globals);
  Out << "Placeholder classes that did not resolve:";
  if (Names.empty()) Out << " none";
  for (const std::string& Placeholder : Names)
    Out << ' ' << Placeholder;
  Out << '\n';
}

}  // namespace gello::tool
