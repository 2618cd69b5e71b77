#include "report/SensorTally.h"

#include "report/TableText.h"

#include <optional>

namespace strake::report {
namespace {

// The readings that are lowest and highest so far.
struct Extremes {
  double lowest = 0;
  double highest = 0;
};

void CountReading(SensorTally& tally, const Sensor& sensor, double reading, Extremes& extremes) {
  if (tally.lowest == nullptr) {
    tally.lowest = tally.highest = &sensor;
    extremes = {reading, reading};
    return;
  }
  tally.hasOneUnit = tally.hasOneUnit && sensor.unit == tally.lowest->unit;
  if (reading < extremes.lowest) {
    tally.lowest = &sensor;
    extremes.lowest = reading;
  }
  if (reading > extremes.highest) {
    tally.highest = &sensor;
    extremes.highest = reading;
  }
}

}  // namespace

SensorTally TallyOf(std::span<const Sensor* const> sensors) {
  SensorTally tally;
  Extremes extremes;
  for (const Sensor* const sensor : sensors) {
    ++tally.count;
    tally.silent += sensor->instance == nullptr ? 1U : 0U;
    tally.warnings += sensor->state == SensorState::Warning ? 1U : 0U;
    tally.criticals += sensor->state == SensorState::Critical ? 1U : 0U;
    if (const std::optional<double> reading = ReadingValue(*sensor)) {
      CountReading(tally, *sensor, *reading, extremes);
    }
  }
  return tally;
}

std::string RangeText(const SensorTally& tally) {
  if (tally.lowest == nullptr) {
    return "";
  }
  if (!tally.hasOneUnit) {
    return "several units";
  }
  std::string text = tally.lowest->reading;
  if (tally.lowest->reading != tally.highest->reading) {
    text += " to " + tally.highest->reading;
  }
  const std::string unit = UnitForPeople(*tally.lowest);
  return unit.empty() ? text : text + " " + unit;
}

std::string TroubleText(const SensorTally& tally) {
  std::string text;
  if (tally.criticals > 0) {
    AppendListed(text, std::to_string(tally.criticals) + " critical");
  }
  if (tally.warnings > 0) {
    AppendListed(text, Counted(tally.warnings, "warning", "warnings"));
  }
  if (tally.silent > 0) {
    AppendListed(text, std::to_string(tally.silent) + " did not answer");
  }
  return text;
}

}  // namespace strake::report
