// What somebody who watches a server is pointed to.
#pragma once

#include "report/Marks.h"
#include "report/Report.h"

#include <cstddef>
#include <string>
#include <vector>

namespace strake::compare {

// One collection of many.
struct Round {
  std::vector<cim::StoredInstance> instances;  // as they were collected, nothing masked
  report::Report report;                       // of these instances, in their order
};

struct Changes {
  report::Marks marks;  // in the later report
  // Names, safe to show: "Fan 1 on SP 2", "Address of Network interface 1 on SP 1".
  std::vector<std::string> changed = {};  // values; a sensor is one
  std::vector<std::string> added = {};    // instances
  std::vector<std::string> gone = {};
  std::size_t findings = 0;  // that were not there before
};

// As Compare tells them, and of sensors also that their state changed, and that
// they fell silent or speak again: then they neither came nor went. A finding is
// marked that was not there before.
Changes ChangesBetween(const Round& before, const Round& after, double tolerancePercent);

}  // namespace strake::compare
