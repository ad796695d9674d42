#pragma once
// The choice max and min make, shared by Real and Integer.
#include "gello/foundation/Extended.h"

namespace gello {

/// y when y >= x, else x (also when the two are unordered).
inline Extended PickMax(Extended x, Extended y) {
  return y >= x ? y : x;
}

/// x only when y > x, else y (also when the two are unordered).
inline Extended PickMin(Extended x, Extended y) {
  return y > x ? x : y;
}

}  // namespace gello
