// The sensors that a service processor was asked for, and how often they did not
// answer.
#pragma once

#include "findings/Facts.h"
#include "report/Sensor.h"

#include <string_view>
#include <vector>

namespace strake::findings {

struct SensorReplies {
  std::string_view name;  // as it is published
  report::SensorKind kind = report::SensorKind::Other;
  Tally tally;
};

// In the order in which they were asked for.
std::vector<SensorReplies> SensorRepliesOf(const OrloFacts& sp);
// A list that did not come, or with a wrong length, stands for all its sensors.
std::vector<SensorReplies> SensorRepliesOf(const TavitFacts& tavit);

}  // namespace strake::findings
