#pragma once
// The native XML form of model elements: each element writes itself into a DOM node and reads
// itself back from one.
#include <pugixml.hpp>

#include "gello/model/Interfaces.h"

namespace gello {

/// The model namespace that the root "GELLO" of a native file carries as "xmlns".
inline constexpr char GelloModelNamespace[] = "http://gello.invalid/gello/1.1";

/// Writes Element into Node: "kind", "name" and "annotation", then its kind's own attributes
/// and child nodes.
void WriteXML(IRTTIElement& Element, pugi::xml_node Node);
/// Reads Node into an existing element; a nil node fails an assertion.
void ReadXML(IRTTIElement& Element, pugi::xml_node Node, IRTTIGlobals* Globals);
/// A new element of the node's "kind", read from it; nil for an absent node or an empty kind.
Ref<IRTTIElement> LoadFromXMLNode(pugi::xml_node Node, IRTTIGlobals* Globals);

/// Writes each item as a child "element" of Node.
void WriteXML(IRTTIElementList& List, pugi::xml_node Node);
/// Reads every child element of Node into List, merging by name in merge mode.
void ReadXML(IRTTIElementList& List, pugi::xml_node Node, IRTTIGlobals* Globals);
/// List unchanged for an absent node; otherwise List (a new one when nil) with Node read in.
Ref<IRTTIElementList> LoadFromXMLNode(Ref<IRTTIElementList> List, pugi::xml_node Node,
                                      IRTTIGlobals* Globals);

}  // namespace gello
