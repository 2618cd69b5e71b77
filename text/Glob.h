// Patterns of names as shells know them.
#pragma once

#include <string_view>

namespace strake::text {

// Whether the pattern fits the whole text: "*" stands for any bytes, "?" for one
// byte, all others for themselves; upper and lower case of ASCII letters are the
// same. Takes at most pattern times text many steps.
[[nodiscard]] bool MatchesGlob(std::string_view pattern, std::string_view text);

}  // namespace strake::text
