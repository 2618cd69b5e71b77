// One numeric sensor as people read it.
#pragma once

#include "cim/StoredInstance.h"

#include <string>

namespace strake::report {

struct SensorText {
  std::string name;     // safe to show
  std::string reading;  // scaled: "5.00"; "no reading" when there is none
  std::string unit;     // "V"
};

[[nodiscard]] bool IsSensor(const cim::StoredInstance& instance);

SensorText TextOfSensor(const cim::StoredInstance& sensor);

}  // namespace strake::report
