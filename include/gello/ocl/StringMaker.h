#pragma once
// How Boolean and number operations make String results before the String class is linked in.
#include "gello/foundation/Export.h"
#include "gello/ocl/Interfaces.h"

namespace gello {

/// Makes a String value holding Text.
using TOCLStringMaker = Ref<IOCLString> (*)(const String& Text);

/// Set by the String value class; until then String results raise EOCLException.
GELLO_API void SetOCLStringMaker(TOCLStringMaker Maker) noexcept;
/// A new String value holding Text, made by the registered maker.
GELLO_API Ref<IOCLString> MakeOCLString(const String& Text);

}  // namespace gello
