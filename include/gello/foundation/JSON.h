#pragma once
// The JSON object model of gello.
#include <nlohmann/json.hpp>

namespace gello {

/// JSON values; member order is kept as written.
using TJSON = nlohmann::ordered_json;

}  // namespace gello
