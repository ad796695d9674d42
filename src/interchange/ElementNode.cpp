#include "ElementNode.h"

namespace gello::forms {
namespace {

bool Equals(const char* Text, std::string_view Name) {
  // Name holds no NUL, so a shorter Text stops at its own end.
  for (char C : Name)
    if (*Text++ != C) return false;
  return *Text == 0;
}

template <std::size_t N>
std::size_t IndexIn(const std::array<std::string_view, N>& Names, const char* Name) {
  for (std::size_t i = 0; i < N; ++i)
    if (Equals(Name, Names[i])) return i;
  return N;
}

}  // namespace

TElementNode::TElementNode(pugi::xml_node Node) {
  for (pugi::xml_attribute Attribute = Node.first_attribute(); Attribute;
       Attribute = Attribute.next_attribute()) {
    const std::size_t i = IndexIn(AttributeNames, Attribute.name());
    if (i < FAttributes.size() && FAttributes[i].data() == nullptr)
      FAttributes[i] = Attribute.value();
  }
  // Text and other nodes have no name, so only elements can play a role.
  for (pugi::xml_node Child = Node.first_child(); Child; Child = Child.next_sibling()) {
    const std::size_t i = IndexIn(RoleNames, Child.name());
    if (i < FRoles.size() && !FRoles[i]) FRoles[i] = Child.internal_object();
  }
}

}  // namespace gello::forms
