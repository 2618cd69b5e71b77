// The report for people.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// First what matters most (FirstScreen.h), then everything by service processor:
// its computer system, its sensors by kind, a row each, and of any other
// instance a block of two columns. Then the findings, and lines that count.
// Without its header it is what RowList.h says.
void WriteTable(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
