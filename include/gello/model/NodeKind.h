#pragma once
// One kind tag per element class of the model and the expression tree, in the order of the class
// tree (each class's descendants follow it), so "is a T" is a range test, as LLVM's classof is.
// Walks switch on the tag instead of asking the C++ type system or comparing kind words.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/foundation/CachedCast.h"
#include "gello/foundation/String.h"

namespace gello {

enum class TRTTINodeKind : std::uint8_t {
  Element,
  Scope,
  Package,
  Globals,
  PackageList,
  Class,
  Generic,
  ClassAlias,
  Method,
  Property,
  Value,
  Factory,
  Conditional,
  Statements,
  TupleValue,
  CollectionValue,
  Pragma,
  MethodCall,
  PropertyRef,
  CollectionMethod,
  Literal,
  EnumLiteral,
  IntegerLiteral,
  RealLiteral,
  BooleanLiteral,
  NullLiteral,
  StringLiteral,
  ClassLiteral,
};

/// The kinds of a class and its descendants, first to last. A class with descendants declares
/// its range as Kinds; a class without them declares only its Kind.
struct TNodeKindRange {
  TRTTINodeKind First, Last;
};

/// How many kinds there are; a table by kind has this many entries.
inline constexpr std::size_t NodeKindCount =
    static_cast<std::size_t>(TRTTINodeKind::ClassLiteral) + 1;

/// The kind word of the files: the class name without "TRTTI".
GELLO_API StringView KindWord(TRTTINodeKind Kind) noexcept;

namespace detail {
// A range inherited from an ancestor starts at the ancestor's kind, not at T's.
template <class T>
constexpr TRTTINodeKind LastKindOf() {
  if constexpr (requires { T::Kinds; })
    if (T::Kinds.First == T::Kind) return T::Kinds.Last;
  return T::Kind;
}
}  // namespace detail

/// Whether an element of kind Kind is a T.
template <class T>
constexpr bool KindIsA(TRTTINodeKind Kind) noexcept {
  return T::Kind <= Kind && Kind <= detail::LastKindOf<T>();
}

/// Whether Element is a T; false for nil.
template <class T, class E>
bool NodeIsA(const E* Element) noexcept {
  return Element && KindIsA<T>(Element->GetNodeKind());
}

/// Element as a T, or nil when it is not one. The tag answers the question; the pointer comes
/// through the cached cast, since elements reach their classes through virtual bases.
template <class T, class E>
T* NodeDynCast(E* Element) noexcept {
  return NodeIsA<T>(Element) ? CachedCast<T>(Element) : nullptr;
}

}  // namespace gello
