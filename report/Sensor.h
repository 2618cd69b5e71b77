// A numeric sensor as every format shows it: what it is called, what it
// measures, its reading in its unit, and how that stands to its limits.
#pragma once

#include "cim/StoredInstance.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace strake::report {

// In the order in which reports for people show them.
enum class SensorKind : std::uint8_t { Temperature, Fan, Voltage, Current, Power, Other };
inline constexpr int kSensorKinds = 6;

// "temperature", "fan", ...; headings have "Temperatures", "Fans", ...
std::string_view KindName(SensorKind kind);
std::string_view KindHeading(SensorKind kind);
std::optional<SensorKind> FindSensorKind(std::string_view name);
// For people: "temperature, fan, ... or other".
std::string SensorKindNames();

enum class SensorState : std::uint8_t { Ok, Warning, Critical };

// "ok", "warning", "critical".
std::string_view StateName(SensorState state);

struct Sensor {
  const cim::StoredInstance* instance = nullptr;  // null: the sensor did not answer
  std::optional<int> sp;                          // from 1
  std::string name;  // without blanks at its end; of the SP's: not safe to show
  SensorKind kind = SensorKind::Other;
  // A decimal number, exact: "5.00"; empty when there is none. With a modifier
  // beyond ±18 it has an exponent.
  std::string reading;
  std::string unit;                  // "V", "°C", "RPM", "%", "A", "W", else the unit's code
  std::optional<SensorState> state;  // only when limits were given, and with a reading
};

// A sensor that was asked for and gave no reading.
struct SilentSensor {
  int sp = 0;  // from 1
  std::string name;
  SensorKind kind = SensorKind::Other;

  friend bool operator==(const SilentSensor&, const SilentSensor&) = default;
};

// Some service processors' names end with blanks.
std::string WithoutBlanksAtItsEnd(std::string_view name);

[[nodiscard]] bool IsSensor(const cim::StoredInstance& instance);

// Without a state.
Sensor SensorOf(const cim::StoredInstance& instance);
Sensor SensorOf(const SilentSensor& silent);

// The reading's value, for comparison and drawing; empty without a reading.
std::optional<double> ReadingValue(const Sensor& sensor);
// Whether there is a reading that programs, which keep numbers as doubles, can
// take in.
bool ReadingFitsDouble(const Sensor& sensor);

// Both safe to show: "no answer" of a sensor that gave none, "no reading" when
// there is none in it; of a unit without a sign "unit 7".
std::string ReadingForPeople(const Sensor& sensor);
std::string UnitForPeople(const Sensor& sensor);

}  // namespace strake::report
