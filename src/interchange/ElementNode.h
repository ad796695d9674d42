#pragma once
// An element node of the native form with the attributes and role nodes its kind's parts read,
// each found in one pass: every node of a large model is asked the same questions, and a search
// by name scanned the node's attributes or children again for each of them.
#include <pugixml.hpp>

#include <array>
#include <cstddef>
#include <string_view>

namespace gello::forms {

inline constexpr std::array<std::string_view, 10> AttributeNames{
    "kind",     "name",        "annotation",  "ownsMembers", "type",
    "ancestor", "elementtype", "actualclass", "value",       "directive"};
inline constexpr std::array<std::string_view, 18> RoleNames{
    "members",  "statements",   "imports",     "enums",  "parameters", "value",
    "classref", "params",       "iterator",    "accum",  "condition",  "thenpart",
    "elsepart", "declaratives", "returnvalue", "values", "elements",   "pragmas"};

/// One of Names, found by the compiler: a name the native form does not read does not compile.
template <const auto& Names>
struct TFormName {
  consteval TFormName(const char* Name) : Text(Name), Index(IndexOf(Name)) {}
  const char* Text;
  std::size_t Index;

 private:
  static consteval std::size_t IndexOf(std::string_view Name) {
    for (std::size_t i = 0; i < Names.size(); ++i)
      if (Names[i] == Name) return i;
    throw "not a name of the native form";
  }
};
using TAttributeName = TFormName<AttributeNames>;
using TRoleName = TFormName<RoleNames>;

/// An element node's attributes and role nodes: the first of each name, as a look-up would find.
class TElementNode {
 public:
  explicit TElementNode(pugi::xml_node Node);
  /// The attribute's text; empty when the node has none by that name.
  std::string_view Attribute(TAttributeName Name) const { return FAttributes[Name.Index]; }
  /// The child node that plays Role; an empty node when there is none.
  pugi::xml_node Role(TRoleName Name) const { return pugi::xml_node(FRoles[Name.Index]); }

 private:
  std::array<std::string_view, AttributeNames.size()> FAttributes{};
  // Kept as pugixml's own node pointers: its handles are built by calls into the library.
  std::array<pugi::xml_node_struct*, RoleNames.size()> FRoles{};
};

}  // namespace gello::forms
