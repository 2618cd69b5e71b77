// A stored value as JSON.
#pragma once

#include "cim/Value.h"

#include <nlohmann/json.hpp>

namespace strake::report {

// A number is a number; a text and the characters of a date-time are valid UTF-8.
nlohmann::ordered_json JsonValue(const cim::Value& value);

}  // namespace strake::report
