// What several sensors tell together.
#pragma once

#include "report/Sensor.h"

#include <cstddef>
#include <span>
#include <string>

namespace strake::report {

struct SensorTally {
  std::size_t count = 0;  // those that did not answer, too
  std::size_t silent = 0;
  std::size_t warnings = 0;
  std::size_t criticals = 0;
  // The first ones of the lowest and of the highest reading; null: none of them
  // has a reading.
  const Sensor* lowest = nullptr;
  const Sensor* highest = nullptr;
  bool hasOneUnit = true;
};

SensorTally TallyOf(std::span<const Sensor* const> sensors);

// Both are safe to show. "21.00 to 46.00 °C", "5.00 V" where all are the same;
// of several units "several units", without readings nothing.
std::string RangeText(const SensorTally& tally);
// What somebody has to look at: "1 critical, 2 warnings, 3 did not answer".
std::string TroubleText(const SensorTally& tally);

}  // namespace strake::report
