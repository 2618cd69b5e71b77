// Cells of comma-separated values (RFC 4180).
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// An integer or decimal number, with an exponent or without.
[[nodiscard]] bool IsDecimalNumber(std::string_view text);

// One cell, in valid UTF-8. What is no number and begins with one of "=+-@", a
// tabulator or a carriage return gets an apostrophe before it: a spreadsheet
// would take it for a formula. With a comma, a double quote or an end of line
// the cell stands in double quotes, and those within it are doubled.
std::string EscapeCsv(std::string_view text);

}  // namespace strake::text
