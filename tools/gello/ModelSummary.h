#pragma once
// The summary of a loaded model that "model info" prints.
#include <ostream>

#include "gello/model/Interfaces.h"

namespace gello::tool {

/// Prints the package's classes, properties, methods and expressions, and the classes its
/// declarations refer to that no loaded package defines.
void PrintSummary(IRTTIPackage& Package, IRTTIGlobals& Globals, std::ostream& Out);

}  // namespace gello::tool
