#include "gello/interchange/XmlNodes.h"

#include <string>

namespace gello {
namespace {

// The step without everything up to and including its first ":", or empty when it has none.
std::string WithoutPrefix(const std::string& Step) {
  const std::size_t Colon = Step.find(':');
  return Colon == std::string::npos ? std::string() : Step.substr(Colon + 1);
}

int IndexOfChild(pugi::xml_node Node, const std::string& Name, int From) {
  int Index = 0;
  for (pugi::xml_node Child : Node.children()) {
    if (Index >= From && Child.type() == pugi::node_element && Name == Child.name()) return Index;
    ++Index;
  }
  return -1;
}

}  // namespace

pugi::xml_node FindNode(pugi::xml_node Node, const String& Path) {
  const std::string Steps = ToUTF8(Path);
  std::size_t Start = 0;
  while (Node && Start <= Steps.size()) {
    std::size_t Slash = Steps.find('/', Start);
    if (Slash == std::string::npos) Slash = Steps.size();
    const std::string Step = Steps.substr(Start, Slash - Start);
    pugi::xml_node Child = Node.child(Step.c_str());
    if (!Child && Step.find(':') != std::string::npos)
      Child = Node.child(WithoutPrefix(Step).c_str());
    Node = Child;
    Start = Slash + 1;
  }
  return Node;
}

int FindNodeIndex(pugi::xml_node Node, const String& Name, int From) {
  const std::string Step = ToUTF8(Name);
  const int Index = IndexOfChild(Node, Step, From);
  if (Index >= 0 || Step.find(':') == std::string::npos) return Index;
  return IndexOfChild(Node, WithoutPrefix(Step), From);
}

}  // namespace gello
