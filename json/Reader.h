// Reads JSON with less mercy than the library does: a duplicate key, nesting
// that is too deep and too many values are refused.
#pragma once

#include "json/Value.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace strake::json {

// What a text may cost.
struct Bounds {
  int deepest = 64;            // levels of nesting
  std::size_t mostValues = 0;  // in the whole text
};

// Throws text::InputError, which names the source and the place.
Value Read(std::string_view text, const std::string& source, const Bounds& bounds);
// One line of a text of many; the source names the line too: "FILE: line 7".
Value ReadLine(std::string_view line, const std::string& source, const Bounds& bounds);

}  // namespace strake::json
