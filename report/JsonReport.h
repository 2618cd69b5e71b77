// The report for programs.
#pragma once

#include "report/Report.h"

#include <string>

namespace strake::report {

// One JSON object, {"format":"strake-report/1","server":{...},"instances":[...]},
// an instance a line: in commit order, properties in the order in which they
// were set. A number is a number, text a string (bytes that are no UTF-8 stand
// as \xNN), a date-time its 25-character text.
std::string JsonReport(const Report& report);

}  // namespace strake::report
