#pragma once
// The native XML form of model elements: each element writes itself into a DOM node and reads
// itself back from one.
#include <pugixml.hpp>
#include "gello/foundation/Export.h"

#include "gello/model/Interfaces.h"

namespace gello {

/// The model namespace that the root "GELLO" of a native file carries as "xmlns".
inline constexpr char GelloModelNamespace[] = "http://gello.invalid/gello/1.1";

/// Writes Element into Node: "kind", "name" and "annotation", then its kind's own attributes
/// and child nodes.
GELLO_API void WriteXML(IRTTIElement& Element, pugi::xml_node Node);
/// Reads Node into an existing element; a nil node fails an assertion.
GELLO_API void ReadXML(IRTTIElement& Element, pugi::xml_node Node, IRTTIGlobals* Globals);
/// A new element of the node's "kind", read from it; nil for an absent node or an empty kind.
GELLO_API Ref<IRTTIElement> LoadFromXMLNode(pugi::xml_node Node, IRTTIGlobals* Globals);

/// Writes each item as a child "element" of Node.
GELLO_API void WriteXML(IRTTIElementList& List, pugi::xml_node Node);
/// Reads every child element of Node into List, merging by name in merge mode.
GELLO_API void ReadXML(IRTTIElementList& List, pugi::xml_node Node, IRTTIGlobals* Globals);
/// List unchanged for an absent node; otherwise List (a new one when nil) with Node read in.
GELLO_API Ref<IRTTIElementList> LoadFromXMLNode(Ref<IRTTIElementList> List, pugi::xml_node Node,
                                                IRTTIGlobals* Globals);

}  // namespace gello
