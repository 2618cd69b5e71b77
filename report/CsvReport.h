// One class as a table for spreadsheets.
#pragma once

#include "report/Writer.h"

namespace strake::report {

// RFC 4180 in UTF-8, lines end with carriage return and line feed. The columns
// are the class' properties in the catalogue's order; sensors have "Reading" and
// "Unit" more, and "State" where there are limits. A reading is a decimal number,
// with an exponent only where its modifier is beyond ±18. One that no double
// holds is an empty cell, as is a property that was not set. A sensor that did
// not answer is no instance and no row.
//
// The class is the one that was asked for; of a report that was asked for
// several or for none it is the first instance's, whose rows alone are written.
void WriteCsv(const Report& report, const Layout& layout, const Sink& sink);

}  // namespace strake::report
