#pragma once
// Text forms of extended reals: always "." as separator, whatever the process locale.
#include <cstdint>
#include "gello/foundation/Export.h"

#include "gello/foundation/Extended.h"
#include "gello/foundation/String.h"

namespace gello {

/// Parses a real; "NAN", "INF" and "-INF" (exactly) give the x87 special values.
/// Anything that is not a number raises EConvertError.
GELLO_API Extended StringToExtended(StringView Text);

/// Formats a real with 18 (HighPrecision) or 15 significant digits: the general form when
/// Digits is negative, else fixed with Digits decimals. NaN and infinities give "NAN", "INF",
/// "-INF".
GELLO_API String ExtendedToString(Extended Value, bool HighPrecision, std::int32_t Digits);

}  // namespace gello
