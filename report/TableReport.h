// The report for people.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// Instances grouped by service processor and class: a sensor is a row, any
// other instance a block of two columns; a closing line counts.
void WriteTable(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
