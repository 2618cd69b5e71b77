// What the command itself says on standard error.
#pragma once

#include "report/Finding.h"

#include <string>
#include <string_view>

namespace strake::app {

inline constexpr std::string_view kMessagePrefix = "strake: ";

// "strake: TEXT" and "strake: warning: TEXT", on one line whatever the text holds.
void TellError(std::string_view text);
void TellWarning(std::string_view text);

// What TellWarning writes.
std::string WarningLine(std::string_view text);

// "strake: SEVERITY: SP N: TEXT", without the SP when none is meant.
void TellFinding(const report::Finding& finding);

}  // namespace strake::app
