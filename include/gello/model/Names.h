#pragma once
// Text rules for names and annotations of model elements.
#include "gello/foundation/Export.h"
#include "gello/foundation/String.h"

namespace gello {

/// Name sanitised for GELLO: other characters become "_", a leading "_" gets "C", keywords
/// "_fixed".
GELLO_API String ValidGelloName(const String& Name);

/// The annotation as printers append it: a block comment for several lines, else a line comment.
GELLO_API String FormatAnnotation(const String& Text);

}  // namespace gello
