// Reads JSON with less mercy than the library does: a duplicate key, nesting
// that is too deep and too many values are refused.
#pragma once

#include "platform/server/JsonValue.h"

#include <string>
#include <string_view>

namespace strake::platform {

// Throws DescriptionError, which names the source and the place.
JsonValue ReadJson(std::string_view text, const std::string& source);

}  // namespace strake::platform
