// Bytes as hexadecimal pairs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace strake::text {

// White space may stand around the pairs, not within one; empty when the text
// holds anything else.
std::optional<std::string> ParseHexBytes(std::string_view text);

// Two upper-case digits.
void AppendHexPair(std::string& out, unsigned char byte);

}  // namespace strake::text
