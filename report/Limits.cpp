#include "report/Limits.h"

#include "text/Glob.h"
#include "text/TextEscape.h"

#include <string_view>

namespace strake::report {
namespace {

bool Matches(const LimitRule& rule, const Sensor& sensor) {
  return (!rule.kind || *rule.kind == sensor.kind) && (!rule.sp || rule.sp == sensor.sp) &&
         text::MatchesGlob(rule.sensor, sensor.name);
}

using BoundOf = std::optional<Bound> LimitRule::*;

// Null when no rule states it.
const Bound* FindBound(const Limits& limits, const Sensor& sensor, BoundOf bound) {
  const Bound* found = nullptr;
  for (const LimitRule& rule : limits) {
    if (rule.*bound && Matches(rule, sensor)) {
      found = &*(rule.*bound);
    }
  }
  return found;
}

struct Check {
  BoundOf bound;
  bool isLower;
  SensorState state;
};

// The graver ones first.
constexpr Check kChecks[] = {
    {&LimitRule::lowerCritical, true, SensorState::Critical},
    {&LimitRule::upperCritical, false, SensorState::Critical},
    {&LimitRule::lowerWarning, true, SensorState::Warning},
    {&LimitRule::upperWarning, false, SensorState::Warning},
};

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
  for (const Check& check : kChecks) {
    const Bound* const bound = FindBound(limits, sensor, check.bound);
    if (reading && bound != nullptr &&
        (check.isLower ? *reading < bound->value : *reading > bound->value)) {
      return {check.state, TextOf(sensor, check, *bound)};
    }
  }
  return {};
}

}  // namespace strake::report
