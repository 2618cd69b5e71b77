// Texts of the Managed Object Format, in which CIM classes and instances are
// written down.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// What stands between the double quotes of a string, in valid UTF-8 on one line:
// \b \t \n \f \r \" \' \\ as such; other controls and characters that turn the
// writing direction as \xHHHH, always with four digits; a byte that is not valid
// UTF-8 as the four characters \xNN, their backslash escaped.
std::string EscapeMof(std::string_view text);

}  // namespace strake::text
