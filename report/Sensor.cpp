#include "report/Sensor.h"

#include "report/InstanceText.h"
#include "report/Reading.h"
#include "text/OrList.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <span>
#include <system_error>

namespace strake::report {
namespace {

struct Kind {
  std::string_view name;
  std::string_view heading;
};

// In the order of SensorKind.
constexpr std::array<Kind, kSensorKinds> kKinds{{
    {"temperature", "Temperatures"},
    {"fan", "Fans"},
    {"voltage", "Voltages"},
    {"current", "Currents"},
    {"power", "Power"},
    {"other", "Others"},
}};

constexpr std::array<std::string_view, 3> kStates{"ok", "warning", "critical"};

std::string NameOf(const cim::StoredInstance& sensor) {
  for (const std::string_view property : {"SensorDescription", "DeviceID"}) {
    if (const cim::Value* const name = cim::FindValue(sensor, property)) {
      return cim::ToText(*name);
    }
  }
  return "(no name)";
}

const Kind& At(SensorKind kind) { return kKinds.at(static_cast<std::size_t>(kind)); }

}  // namespace

std::string_view KindName(SensorKind kind) { return At(kind).name; }
std::string_view KindHeading(SensorKind kind) { return At(kind).heading; }

std::optional<SensorKind> FindSensorKind(std::string_view name) {
  const auto* const found = std::ranges::find(kKinds, name, &Kind::name);
  if (found == kKinds.end()) {
    return std::nullopt;
  }
  return static_cast<SensorKind>(found - kKinds.begin());
}

std::string SensorKindNames() { return text::OrList(std::span<const Kind>(kKinds), &Kind::name); }

std::string_view StateName(SensorState state) {
  return kStates.at(static_cast<std::size_t>(state));
}

std::string WithoutBlanksAtItsEnd(std::string_view name) {
  return std::string(name.substr(0, name.find_last_not_of(' ') + 1));
}

bool IsSensor(const cim::StoredInstance& instance) {
  return instance.schema->group == cim::QueryGroup::Sensors;
}

Sensor SensorOf(const cim::StoredInstance& instance) {
  Sensor sensor;
  sensor.instance = &instance;
  sensor.sp = SourceNode(instance);
  sensor.name = WithoutBlanksAtItsEnd(NameOf(instance));
  if (const auto* const units = cim::FindValueOf<std::uint16_t>(instance, "BaseUnits")) {
    sensor.unit = UnitText(*units);
    sensor.kind = KindOfUnit(*units);
  }
  if (const auto* const reading = cim::FindValueOf<std::int32_t>(instance, "CurrentReading")) {
    const auto* const modifier = cim::FindValueOf<std::int32_t>(instance, "UnitModifier");
    sensor.reading = ScaledReading(*reading, modifier == nullptr ? 0 : *modifier);
  }
  return sensor;
}

Sensor SensorOf(const SilentSensor& silent) {
  Sensor sensor;
  sensor.sp = silent.sp;
  sensor.name = WithoutBlanksAtItsEnd(silent.name);
  sensor.kind = silent.kind;
  return sensor;
}

std::optional<double> ReadingValue(const Sensor& sensor) {
  double value = 0;
  const char* const end = std::to_address(sensor.reading.end());
  const auto [stop, error] = std::from_chars(sensor.reading.data(), end, value);
  if (sensor.reading.empty() || stop != end) {
    return std::nullopt;
  }
  if (error == std::errc::result_out_of_range) {  // greater or smaller than doubles are
    const bool isTiny = sensor.reading.find("e-") != std::string::npos;
    const double size = isTiny ? 0 : std::numeric_limits<double>::infinity();
    return sensor.reading.front() == '-' ? -size : size;
  }
  return value;
}

bool ReadingFitsDouble(const Sensor& sensor) {
  const std::optional<double> value = ReadingValue(sensor);
  return value && std::isfinite(*value);
}

std::string ReadingForPeople(const Sensor& sensor) {
  if (sensor.instance == nullptr) {
    return "no answer";
  }
  return sensor.reading.empty() ? "no reading" : sensor.reading;
}

std::string UnitForPeople(const Sensor& sensor) {
  const bool isCode =
      !sensor.unit.empty() && sensor.unit.front() >= '0' && sensor.unit.front() <= '9';
  return isCode ? "unit " + sensor.unit : sensor.unit;
}

}  // namespace strake::report
