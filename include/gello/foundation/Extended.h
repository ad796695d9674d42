#pragma once
// The OCL Real and Integer value type: the 80-bit x87 extended float.
#include <limits>

namespace gello {

/// 80-bit extended float (64-bit mantissa).
using Extended = long double;
static_assert(std::numeric_limits<Extended>::digits == 64, "Extended must be the x87 80-bit format");

}  // namespace gello
