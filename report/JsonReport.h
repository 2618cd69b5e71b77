// The report for programs.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// One JSON object, {"format":"strake-report/1","strake":VERSION,
// "collected_at":RFC 3339,"server":{...},"findings":[...],"instances":[...]}, a
// finding and an instance a line. Findings are
// {"severity":S,"code":C,"sp":N,"text":T}, the gravest first, "sp" only where one
// is meant. Instances are {"class":NAME,"properties":{...}}, in commit order,
// properties in the order in which they were set. A number is a number, text a
// string (bytes that are no UTF-8 stand as \xNN), a date-time its 25-character
// text. A sensor's object goes on with "reading" (a number, exact; not there
// without a reading and where it is beyond every double), "unit" (empty without
// one) and, where limits were given and there is a reading, "state". Controls and
// characters that turn the writing direction stand as \uXXXX.
void WriteJson(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
