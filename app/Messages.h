// What the command itself says on standard error.
#pragma once

#include <string_view>

namespace strake::app {

// "strake: TEXT" and "strake: warning: TEXT", on one line whatever the text holds.
void TellError(std::string_view text);
void TellWarning(std::string_view text);

}  // namespace strake::app
