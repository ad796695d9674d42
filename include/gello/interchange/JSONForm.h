#pragma once
// The JSON form of model elements: lighter than the native XML form and not symmetric in
// every kind.
#include "gello/foundation/Export.h"
#include "gello/foundation/JSON.h"
#include "gello/model/Interfaces.h"

namespace gello {

/// The element as one JSON object: "name", "kind", then its kind's own keys.
GELLO_API TJSON GetasJSON(IRTTIElement& Element);
/// Fills the element from an object; keys that are absent leave their fields as they are.
GELLO_API void SetasJSON(IRTTIElement& Element, const TJSON& Value);
/// A new element of the object's "kind" and "name", filled from it; nil for an empty kind.
GELLO_API Ref<IRTTIElement> LoadFromJSONValue(const TJSON& Value);

/// The list as an array of element objects, in list order.
GELLO_API TJSON GetasJSON(IRTTIElementList& List);
/// Reads each object into the item of its name, or into a new item appended to the list.
GELLO_API void SetasJSON(IRTTIElementList& List, const TJSON& Value);

}  // namespace gello
