// Foreign text within a message of one line.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// The text with bytes outside printable ASCII as \xNN; the middle of a long
// one is left out.
std::string Printable(std::string_view text);
// The same in double quotes.
std::string Quoted(std::string_view text);

}  // namespace strake::text
