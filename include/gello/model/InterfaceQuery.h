#pragma once
// Asking an element for a model interface by its id, for callers that hold only the GUID.
#include "gello/foundation/Export.h"
#include "gello/model/Interfaces.h"

namespace gello {

/// True when Element supports the model interface with that id; unknown ids are unsupported.
GELLO_API bool Supports(IRTTIElement* Element, const GUID& InterfaceId);

}  // namespace gello
