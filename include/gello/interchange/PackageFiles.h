#pragma once
// A package's native model files and its stream form.
#include "gello/model/Package.h"

namespace gello {

/// A package named by ValidGelloName of the file's name without folder and extension, then
/// read from the native file; a root that names another package fails the rename assertion.
Ref<TRTTIPackage> CreatePackageFromFile(const String& FileName, IRTTIGlobals* Globals);
/// Reads a native model file (root "GELLO") into Package; a file that is not well-formed raises.
void LoadFromFile(IRTTIPackage& Package, const String& FileName, IRTTIGlobals* Globals);
/// Writes Package as a native model file.
void SaveToFile(IRTTIPackage& Package, const String& FileName);
/// Writes the header "GELLO_PACKAGE" (its first 13 bytes of UTF-16), then the native form.
void SaveToStream(IRTTIPackage& Package, const String& FileName);

}  // namespace gello
