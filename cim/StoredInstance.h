// A committed CIM instance as the host keeps it.
#pragma once

#include "plugin/host/TCIMValue.h"

#include <string>
#include <utility>
#include <vector>

namespace strake::cim {

struct StoredInstance {
  std::string className;
  unsigned long number = 0;
  // In the order in which they were set.
  std::vector<std::pair<std::string, NVELKZEV20::TCIMValue>> properties;
};

}  // namespace strake::cim
