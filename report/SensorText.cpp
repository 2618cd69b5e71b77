#include "report/SensorText.h"

#include "report/Property.h"
#include "report/Reading.h"

#include <cstdint>

namespace strake::report {
namespace {

std::string NameOf(const cim::StoredInstance& sensor) {
  for (const std::string_view property : {"SensorDescription", "DeviceID"}) {
    if (const NVELKZEV20::TCIMValue* const name = FindProperty(sensor, property)) {
      return ValueForPeople(*name);
    }
  }
  return "(no name)";
}

}  // namespace

SensorText TextOfSensor(const cim::StoredInstance& sensor) {
  SensorText text;
  text.name = NameOf(sensor);
  const auto* const reading = FindPropertyOf<std::int32_t>(sensor, "CurrentReading");
  if (reading == nullptr) {
    text.reading = "no reading";
    return text;
  }
  const auto* const modifier = FindPropertyOf<std::int32_t>(sensor, "UnitModifier");
  text.reading = ScaledReading(*reading, modifier == nullptr ? 0 : *modifier);
  if (const auto* const units = FindPropertyOf<std::uint16_t>(sensor, "BaseUnits")) {
    text.unit = UnitText(*units);
  }
  return text;
}

}  // namespace strake::report
