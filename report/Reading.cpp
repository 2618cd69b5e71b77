#include "report/Reading.h"

#include <array>
#include <string_view>

namespace strake::report {
namespace {

// Beyond it a power of ten is written as such: a modifier is a 32-bit number,
// and nobody reads two billion zeros.
constexpr std::int32_t kLargestModifier = 18;

struct Unit {
  std::uint16_t code;
  std::string_view text;
};

constexpr std::array<Unit, 4> kUnits{{
    {2, "°C"},
    {5, "V"},
    {19, "RPM"},
    {65, "%"},
}};

}  // namespace

std::string ScaledReading(std::int32_t reading, std::int32_t modifier) {
  if (modifier > kLargestModifier || modifier < -kLargestModifier) {
    return std::to_string(reading) + "e" + std::to_string(modifier);
  }
  const std::int64_t wide = reading;
  std::string digits = std::to_string(wide < 0 ? -wide : wide);
  if (modifier >= 0) {
    if (reading != 0) {
      digits.append(static_cast<std::size_t>(modifier), '0');
    }
  } else {
    const auto decimals = static_cast<std::size_t>(-modifier);
    if (digits.size() <= decimals) {
      digits.insert(0, decimals + 1 - digits.size(), '0');
    }
    digits.insert(digits.end() - static_cast<std::ptrdiff_t>(decimals), '.');
  }
  if (reading < 0) {
    digits.insert(digits.begin(), '-');
  }
  return digits;
}

std::string UnitText(std::uint16_t baseUnits) {
  for (const Unit& unit : kUnits) {
    if (unit.code == baseUnits) {
      return std::string(unit.text);
    }
  }
  return std::string("unit ").append(std::to_string(baseUnits));
}

}  // namespace strake::report
