// Reads JSON with less mercy than the library does: a duplicate key and
// nesting that is too deep are refused.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

namespace strake::platform {

// Throws DescriptionError, which names the source and the place.
nlohmann::json ReadJson(std::string_view text, const std::string& source);

}  // namespace strake::platform
