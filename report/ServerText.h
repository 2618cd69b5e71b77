// Of which server a report is, in one line.
#pragma once

#include "report/Report.h"

#include <string>

namespace strake::report {

// "rack7 (orlo): Three cards", without a description "rack7 (orlo)"; safe to show.
std::string ServerForPeople(const ServerFacts& server);

}  // namespace strake::report
