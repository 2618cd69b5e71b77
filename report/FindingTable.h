// Findings as rows.
#pragma once

#include "report/TableText.h"

#include <span>
#include <string>

namespace strake::report {

// "1 critical, 2 warnings, 3 info"; "none".
std::string FindingCounts(std::span<const Finding> findings);

// Severity, service processor and text.
void WriteFindingRows(std::span<const Finding> findings, TableText& out);

}  // namespace strake::report
