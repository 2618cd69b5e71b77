#include "report/Reading.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace strake::report {
namespace {

// Beyond it a power of ten is written as such: a modifier is a 32-bit number, of
// up to two billion zeros.
constexpr std::int32_t kLargestModifier = 18;

struct Unit {
  std::uint16_t code;
  std::string_view text;
  SensorKind kind;
};

constexpr std::array<Unit, 6> kUnits{{
    {2, "°C", SensorKind::Temperature},
    {5, "V", SensorKind::Voltage},
    {6, "A", SensorKind::Current},
    {7, "W", SensorKind::Power},
    {19, "RPM", SensorKind::Fan},
    {65, "%", SensorKind::Fan},
}};

// Null when it is none of the table's.
const Unit* FindUnit(std::uint16_t baseUnits) {
  const auto* const found = std::ranges::find(kUnits, baseUnits, &Unit::code);
  return found == kUnits.end() ? nullptr : found;
}

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
  const Unit* const unit = FindUnit(baseUnits);
  return unit == nullptr ? std::to_string(baseUnits) : std::string(unit->text);
}

SensorKind KindOfUnit(std::uint16_t baseUnits) {
  const Unit* const unit = FindUnit(baseUnits);
  return unit == nullptr ? SensorKind::Other : unit->kind;
}

}  // namespace strake::report
