// Text of unknown origin, made safe to write: for a terminal, and as UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace strake::text {

// Bytes that are not valid UTF-8 become \xNN; everything else stays.
std::string ToValidUtf8(std::string_view text);

// Valid UTF-8 on one line: line feed, tabulator and carriage return become \n,
// \t and \r; every byte of other control characters, of characters that turn
// the writing direction or show nothing, and of invalid UTF-8 becomes \xNN.
std::string EscapeForPeople(std::string_view text);

// The number of code points of valid UTF-8.
std::size_t CountCodePoints(std::string_view text);

}  // namespace strake::text
