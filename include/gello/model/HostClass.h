#pragma once
// The host types a model class can be bound to: an implementing class, or an interface.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/model/Interfaces.h"

namespace gello {

struct IOCLAny;

/// What a host type handle (THostClass) stands for.
enum THostClassKind : std::uint8_t { hc_interface, hc_class };

/// Makes a value of the implementing class for a model class bound to it.
using TValueMaker = Ref<IOCLAny> (*)(const Ref<IRTTIClass>& Class);

/// A host type: an implementing class, or (as TIntfInfo) an interface. An implementing class
/// that can stand for a model class's values says how to make one.
struct GELLO_API THostClassInfo {
  const char* Name;
  THostClassKind HostKind = hc_class;
  TValueMaker MakeValue = nullptr;
};

}  // namespace gello
