// One CIM instance as people read it: a title and rows of label and value.
#pragma once

#include "platform/hostcore/Repository.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace strake::app {

struct Row {
  std::string label;
  std::string value;  // safe to show
};

// The number of the service processor that the instance came from.
std::optional<int> SourceNode(const platform::StoredInstance& instance);

// "Network interface 1 (VELKSG_ServProc_IPProtocolEndpoint)".
std::string InstanceTitle(const platform::StoredInstance& instance);

// In the order in which the properties were set; every property is there, but
// for the node and what the title says. Values that belong together share a row.
std::vector<Row> InstanceRows(const platform::StoredInstance& instance, bool showSecrets);

}  // namespace strake::app
