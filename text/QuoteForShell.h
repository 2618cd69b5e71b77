// Text as one word of a shell's.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// For sh, bash and zsh. A word that is the same without quotes has none.
std::string QuotedForShell(std::string_view text);
std::string QuotedForFish(std::string_view text);

// The same with a backslash before each of the characters.
std::string WithBackslashes(std::string_view text, std::string_view characters);

}  // namespace strake::text
