// Reads UTF-8.
#pragma once

#include <cstddef>
#include <string_view>

namespace strake::text {

struct CodePoint {
  char32_t value = 0;
  std::size_t length = 0;  // in bytes; 0: the text does not begin with valid UTF-8
};

// What the text begins with. The text is not empty.
CodePoint DecodeFront(std::string_view text);

// The number of code points of valid UTF-8.
std::size_t CountCodePoints(std::string_view text);

}  // namespace strake::text
