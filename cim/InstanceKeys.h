// What tells instances apart: their class and its key properties.
#pragma once

#include "cim/StoredInstance.h"

#include <cstddef>
#include <string>

namespace strake::cim {

// For containers of instances that are one when their keys are equal. Their
// schemas point into one catalogue.
struct HashKeys {
  std::size_t operator()(const StoredInstance* instance) const;
};

struct HaveEqualKeys {
  bool operator()(const StoredInstance* one, const StoredInstance* other) const;
};

// "NAME=VALUE, ...", as the values are: not safe to show.
std::string DescribeKeys(const StoredInstance& instance);

}  // namespace strake::cim
