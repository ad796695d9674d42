#pragma once
// The element-class registry: readers create elements by kind word (a class name without "TRTTI").
#include <initializer_list>
#include <vector>
#include "gello/foundation/Export.h"

#include "gello/model/Interfaces.h"

namespace gello {

/// Makes an element of one class with the given name (the class's virtual constructor).
using TElementFactory = Ref<IRTTIElement> (*)(String Name);

/// A registered element class: its kind word and its factory.
struct GELLO_API TRTTIElementClass {
  String Kind;
  TElementFactory Create;
};

/// The registry entry of element class T, under the kind word of its kind tag.
template <class T>
TRTTIElementClass RTTIClassOf() {
  return {String(KindWord(T::Kind)),
          [](String Name) -> Ref<IRTTIElement> { return MakeRef<T>(std::move(Name)); }};
}

/// Registers element classes by kind; a kind registered again takes the newer class.
GELLO_API void RegisterRTTI(std::initializer_list<TRTTIElementClass> Classes);

/// The registered kind words, sorted.
GELLO_API std::vector<String> RegisteredKinds();

/// A new element of that kind and name; empty for an empty kind; raises for an unknown kind.
GELLO_API Ref<IRTTIElement> CreateForReader(StringView Kind, String Name);

/// The factory registered for a kind word; raises, as creating would, when none is.
GELLO_API TElementFactory ElementFactoryFor(StringView Kind);

}  // namespace gello
