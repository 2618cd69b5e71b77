#include "report/SensorText.h"

#include "report/Reading.h"
#include "report/ValueForPeople.h"

#include <cstdint>

namespace strake::report {
namespace {

std::string NameOf(const cim::StoredInstance& sensor) {
  for (const std::string_view property : {"SensorDescription", "DeviceID"}) {
    if (const cim::Value* const name = cim::FindValue(sensor, property)) {
      return ValueForPeople(*name);
    }
  }
  return "(no name)";
}

}  // namespace

bool IsSensor(const cim::StoredInstance& instance) {
  return instance.schema->group == cim::QueryGroup::Sensors;
}

SensorText TextOfSensor(const cim::StoredInstance& sensor) {
  SensorText text;
  text.name = NameOf(sensor);
  const auto* const reading = cim::FindValueOf<std::int32_t>(sensor, "CurrentReading");
  if (reading == nullptr) {
    text.reading = "no reading";
    return text;
  }
  const auto* const modifier = cim::FindValueOf<std::int32_t>(sensor, "UnitModifier");
  text.reading = ScaledReading(*reading, modifier == nullptr ? 0 : *modifier);
  if (const auto* const units = cim::FindValueOf<std::uint16_t>(sensor, "BaseUnits")) {
    text.unit = UnitText(*units);
  }
  return text;
}

}  // namespace strake::report
