// The report for people.
#pragma once

#include "report/Report.h"

#include <string>

namespace strake::report {

enum class Colour { Never, Headings };

// Instances grouped by service processor and class: a sensor is a row, any
// other instance a block of two columns; a closing line counts.
std::string TableReport(const Report& report, Colour colour);

}  // namespace strake::report
