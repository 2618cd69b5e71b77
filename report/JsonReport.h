// The report for programs.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// One JSON object, {"format":"strake-report/1","strake":VERSION,
// "collected_at":RFC 3339,"server":{...},"instances":[...]}, an instance a line:
// in commit order, properties in the order in which they were set. A number is
// a number, text a string (bytes that are no UTF-8 stand as \xNN), a date-time
// its 25-character text. Controls and characters that turn the writing
// direction stand as \uXXXX.
void WriteJson(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
