#pragma once
// Child lookups in a DOM tree that tolerate a namespace prefix the document leaves out.
#include <pugixml.hpp>
#include "gello/foundation/Export.h"

#include "gello/foundation/String.h"

namespace gello {

/// Walks down along "a/b/c"; a step with ":" is retried without its prefix; empty when a step
/// fails.
GELLO_API pugi::xml_node FindNode(pugi::xml_node Node, const String& Path);

/// Position of the first child named Name at or after From (same prefix retry); -1 when none.
GELLO_API int FindNodeIndex(pugi::xml_node Node, const String& Name, int From);

}  // namespace gello
