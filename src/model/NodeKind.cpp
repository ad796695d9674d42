#include "gello/model/NodeKind.h"

#include <array>

namespace gello {

StringView KindWord(TRTTINodeKind Kind) noexcept {
  // In the order of the enumeration.
  static constexpr std::array<StringView, NodeKindCount> Words{
      u"Element",         u"Scope",         u"Package",        u"Globals",     u"PackageList",
      u"Class",           u"Generic",       u"ClassAlias",     u"Method",      u"Property",
      u"Value",           u"Factory",       u"Conditional",    u"Statements",  u"TupleValue",
      u"CollectionValue", u"Pragma",        u"MethodCall",     u"PropertyRef", u"CollectionMethod",
      u"Literal",         u"EnumLiteral",   u"IntegerLiteral", u"RealLiteral", u"BooleanLiteral",
      u"NullLiteral",     u"StringLiteral", u"ClassLiteral"};
  return Words[static_cast<std::size_t>(Kind)];
}

}  // namespace gello
