// The table without its headings.
#pragma once

#include "report/ProcessorParts.h"
#include "report/TableText.h"

#include <span>

namespace strake::report {

// A row for every sensor, every property and every finding, and no other line.
// Each row begins with its service processor ("SP 1", or "-"), then what it is
// of; two blanks at least stand between columns:
//   SP 1  temperature  CPU 1 temperature  46.00 °C  warning
//   SP 1  network 2    Host name          orlo-a
//   SP 1  finding      warning            2 fans did not answer
// An instance is called by the short name of its class, and its number where it
// has one. Properties that share a row in the table share it here. Within a
// service processor the order is the table's; findings are the last rows.
void WriteRowList(const Report& report, std::span<const ProcessorPart> parts, TableText& out);

}  // namespace strake::report
