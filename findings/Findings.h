// What follows from what was seen at the boundary.
#pragma once

#include "findings/Facts.h"
#include "report/Report.h"

namespace strake::findings {

// Sets the processors and the silent sensors, and adds to the findings.
void AddFindings(const Facts& facts, report::Collected& collected);

}  // namespace strake::findings
