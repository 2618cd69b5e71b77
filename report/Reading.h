// A numeric sensor's reading as text, scaled by its unit modifier.
#pragma once

#include <cstdint>
#include <string>

namespace strake::report {

// reading * 10^modifier, exactly: 500 and -2 give "5.00".
std::string ScaledReading(std::int32_t reading, std::int32_t modifier);

// "V", "°C", "RPM", "%"; of another unit its number: "unit 7".
std::string UnitText(std::uint16_t baseUnits);

}  // namespace strake::report
