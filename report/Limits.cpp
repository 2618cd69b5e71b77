#include "report/Limits.h"

#include "text/Glob.h"
#include "text/TextEscape.h"

#include <array>
#include <cstddef>

namespace strake::report {
namespace {

bool Matches(const LimitRule& rule, const Sensor& sensor) {
  return (!rule.kind || *rule.kind == sensor.kind) && (!rule.sp || rule.sp == sensor.sp) &&
         text::MatchesGlob(rule.sensor, sensor.name);
}

struct Check {
  std::optional<Bound> LimitRule::*bound;
  bool isLower;
  SensorState state;
};

// The graver ones first.
constexpr std::array<Check, 4> kChecks{{
    {&LimitRule::lowerCritical, true, SensorState::Critical},
    {&LimitRule::upperCritical, false, SensorState::Critical},
    {&LimitRule::lowerWarning, true, SensorState::Warning},
    {&LimitRule::upperWarning, false, SensorState::Warning},
}};

// In the order of the checks; null where no rule states one.
using Bounds = std::array<const Bound*, kChecks.size()>;

Bounds BoundsOf(const Sensor& sensor, const Limits& limits) {
  Bounds bounds{};
  for (const LimitRule& rule : limits) {
    if (!Matches(rule, sensor)) {
      continue;
    }
    for (std::size_t index = 0; index < kChecks.size(); ++index) {
      if (const std::optional<Bound>& bound = rule.*kChecks.at(index).bound) {
        bounds.at(index) = &*bound;
      }
    }
  }
  return bounds;
}

std::string TextOf(const Sensor& sensor, const Check& check, const Bound& bound) {
  std::string unit;
  if (!sensor.unit.empty()) {
    unit.append(1, ' ').append(UnitForPeople(sensor));
  }
  return text::EscapeForPeople(sensor.name) + " is " + sensor.reading + unit +
         (check.isLower ? ", below " : ", above ") + bound.text + unit;
}

}  // namespace

Judgement Judge(const Sensor& sensor, const Limits& limits) {
  const std::optional<double> reading = ReadingValue(sensor);
  if (!reading) {
    return {};
  }
  const Bounds bounds = BoundsOf(sensor, limits);
  for (std::size_t index = 0; index < kChecks.size(); ++index) {
    const Check& check = kChecks.at(index);
    const Bound* const bound = bounds.at(index);
    if (bound != nullptr && (check.isLower ? *reading < bound->value : *reading > bound->value)) {
      return {check.state, TextOf(sensor, check, *bound)};
    }
  }
  return {};
}

}  // namespace strake::report
