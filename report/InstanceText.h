// One CIM instance as people read it: a title and rows of label and value.
#pragma once

#include "cim/StoredInstance.h"

#include <optional>
#include <string>
#include <vector>

namespace strake::report {

struct Row {
  std::string label;
  std::string value;                              // safe to show
  const cim::SchemaProperty* property = nullptr;  // never null in an instance's rows
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
