#pragma once
// A package's native model files and its stream form.
#include <ostream>
#include "gello/foundation/Export.h"
#include "gello/model/Package.h"

namespace gello {

/// A package named by ValidGelloName of the file's name without folder and extension, then
/// read from the native file; a root that names another package fails the rename assertion.
GELLO_API Ref<TRTTIPackage> CreatePackageFromFile(const String& FileName, IRTTIGlobals* Globals);
/// Reads a native model file (root "GELLO") into Package; a file that is not well-formed raises.
GELLO_API void LoadFromFile(IRTTIPackage& Package, const String& FileName, IRTTIGlobals* Globals);
/// Writes Package as a native model file.
GELLO_API void SaveToFile(IRTTIPackage& Package, const String& FileName);
/// Writes Package as a native model document to Out.
GELLO_API void WriteModelDocument(IRTTIPackage& Package, std::ostream& Out);
/// Writes the header "GELLO_PACKAGE" (its first 13 bytes of UTF-16), then the native form.
GELLO_API void SaveToStream(IRTTIPackage& Package, const String& FileName);

}  // namespace gello
