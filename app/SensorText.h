// One numeric sensor as people read it.
#pragma once

#include "platform/hostcore/Repository.h"

#include <string>

namespace strake::app {

inline constexpr std::string_view kSensorClass = "VELKSG_SP_NumericSensor";

struct SensorText {
  std::string name;     // safe to show
  std::string reading;  // scaled: "5.00"; "no reading" when there is none
  std::string unit;     // "V"
};

SensorText TextOfSensor(const platform::StoredInstance& sensor);

}  // namespace strake::app
