// The report for programs.
#pragma once

#include "report/Writer.h"

#include <string>
#include <string_view>

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

// The same object on one line.
void WriteJsonLine(const Report& report, const Layout& layout, const Sink& sink);

// Why there is no report of a server.
struct Failure {
  std::string server;  // its name
  std::string version;
  std::string text;
};

// What stands for the report among the lines of others, with the line's end:
// {"format":"strake-error/1","strake":VERSION,"server":{"name":NAME},"error":TEXT}.
std::string JsonFailureLine(const Failure& failure);

// Whether it is one report as WriteJsonLine writes it, and nothing else.
bool IsJsonReportLine(std::string_view text);

}  // namespace strake::report
