// One CIM instance as people read it: a title and rows of label and value.
#pragma once

#include "cim/StoredInstance.h"

#include <optional>
#include <string>
#include <vector>

namespace strake::report {

struct Row {
  std::string label;
  std::string value;  // safe to show
  // What the value was made of, in an instance's rows: never null, and what
  // shares the row, if anything.
  const cim::StoredProperty* property = nullptr;
  const cim::StoredProperty* companion = nullptr;
};

// The number of the service processor that the instance came from.
std::optional<int> SourceNode(const cim::StoredInstance& instance);

// "Network interface 1".
std::string NumberedTitle(const cim::StoredInstance& instance);
// "Network interface 1 (VELKSG_ServProc_IPProtocolEndpoint)".
std::string InstanceTitle(const cim::StoredInstance& instance);

// In the order in which the properties were set; every property is there, but
// for the node and what the title says. Values that belong together share a row.
std::vector<Row> InstanceRows(const cim::StoredInstance& instance);

}  // namespace strake::report
