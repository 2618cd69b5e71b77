// Between which readings a sensor is fine.
#pragma once

#include "report/Finding.h"
#include "report/Sensor.h"

#include <optional>
#include <string>
#include <vector>

namespace strake::report {

// A bound and how it was written: safe to show.
struct Bound {
  double value = 0;
  std::string text;
};

// What it does not say holds for every sensor.
struct LimitRule {
  std::string sensor = "*";  // a glob
  std::optional<SensorKind> kind = {};
  std::optional<int> sp = {};  // from 1
  std::optional<Bound> lowerCritical = {};
  std::optional<Bound> lowerWarning = {};
  std::optional<Bound> upperWarning = {};
  std::optional<Bound> upperCritical = {};
};

// Of several rules that match a sensor, the last one that states a bound holds
// for it. A reading that equals a bound is within it.
using Limits = std::vector<LimitRule>;

// What the limits say of a sensor: of one without a reading that it is fine.
struct Judgement {
  SensorState state = SensorState::Ok;
  std::string text;  // empty when it is fine: "Fan 01 speed is 12 %, below 20 %"
};

Judgement Judge(const Sensor& sensor, const Limits& limits);

}  // namespace strake::report
