// A stored value as people read it.
#pragma once

#include "cim/Value.h"

#include <string>

namespace strake::report {

// Safe to show, on one line.
std::string ValueForPeople(const cim::Value& value);

}  // namespace strake::report
