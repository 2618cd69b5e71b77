// A numeric sensor's reading as text, scaled by its unit modifier.
#pragma once

#include "report/Sensor.h"

#include <cstdint>
#include <string>

namespace strake::report {

// reading * 10^modifier, exactly: 500 and -2 give "5.00".
std::string ScaledReading(std::int32_t reading, std::int32_t modifier);

// "V", "°C", "RPM", "%", "A", "W"; of another unit its code: "20".
std::string UnitText(std::uint16_t baseUnits);
// What is measured in the unit.
SensorKind KindOfUnit(std::uint16_t baseUnits);

}  // namespace strake::report
