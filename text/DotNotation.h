// Identifiers as people write them: the byte values in decimal, joined by
// points, no point at the end.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace strake::text {

std::string DotNotation(std::span<const unsigned char> identifier);
// Of bytes that are kept as a string.
std::string DotNotationOf(std::string_view identifier);

// The identifier's bytes; empty when the text is not written exactly so (a
// number over 255, a leading zero, an empty part).
std::optional<std::string> ParseDotNotation(std::string_view text);

// One number of it.
std::optional<unsigned char> ParseDecimalByte(std::string_view text);

}  // namespace strake::text
