#pragma once
// Decimal text of 64-bit integers, read by Integer values and integer data cells alike.
#include <cstdint>
#include "gello/foundation/String.h"

namespace gello {

/// A whole 64-bit decimal number with an optional sign; false for anything else.
bool TryStrToInt64(const String& Text, std::int64_t& Value);

}  // namespace gello
