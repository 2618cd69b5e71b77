#include "report/ChartScale.h"

#include "report/NominalVoltage.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace strake::report {
namespace {

constexpr double kLargest = 1e12;
constexpr double kWhole = 100;
constexpr std::array<double, 3> kDeviationEnds{5, 10, 20};

// The number at or above that is short to write, as is its half.
double RoundUp(double value) {
  constexpr std::array<double, 10> kRound{1, 1.2, 1.6, 2, 3, 4, 5, 6, 8, 10};
  if (!(value > 0)) {
    return 0;
  }
  const double size = std::min(value, kLargest);
  const double power = std::pow(10, std::floor(std::log10(size)));
  for (const double round : kRound) {
    if (size <= round * power) {
      return round * power;
    }
  }
  return 10 * power;
}

bool HasBar(const Sensor& sensor) {
  return sensor.kind != SensorKind::Voltage && sensor.kind != SensorKind::Other &&
         !sensor.reading.empty();
}

}  // namespace

Scale ScaleAround(double lowest, double highest) {
  const double below = RoundUp(-lowest);
  const Scale scale{.low = below == 0 ? 0 : -below, .high = RoundUp(highest)};
  return scale.low == scale.high ? Scale() : scale;
}

double PlaceOn(const Scale& scale, double value) {
  return (std::clamp(value, scale.low, scale.high) - scale.low) / (scale.high - scale.low) * kWhole;
}

ChartScales::ChartScales(std::span<const Sensor> sensors) {
  double deviation = 0;
  for (const Sensor& sensor : sensors) {
    if (HasBar(sensor)) {
      const double value = ReadingValue(sensor).value_or(0);
      Scale& extent = fByUnit.try_emplace(sensor.unit, Scale{0, 0}).first->second;
      extent = {std::min(extent.low, value), std::max(extent.high, value)};
    }
    deviation = std::max(deviation, std::abs(Deviation(sensor).value_or(0)));
  }
  for (auto& [unit, extent] : fByUnit) {
    extent = unit == "%" ? ScaleAround(extent.low, std::max(extent.high, kWhole))
                         : ScaleAround(extent.low, extent.high);
  }
  const auto end =
      std::ranges::find_if(kDeviationEnds, [deviation](double one) { return deviation <= one; });
  const double most = end == kDeviationEnds.end() ? kDeviationEnds.back() : *end;
  fDeviations = {-most, most};
}

const Scale* ChartScales::Of(const Sensor& sensor) const {
  if (!HasBar(sensor)) {
    return nullptr;
  }
  const auto found = fByUnit.find(sensor.unit);
  return found == fByUnit.end() ? nullptr : &found->second;
}

std::optional<double> Deviation(const Sensor& sensor) {
  if (sensor.kind != SensorKind::Voltage) {
    return std::nullopt;
  }
  const std::optional<double> nominal = NominalVoltage(sensor.name);
  const std::optional<double> value = ReadingValue(sensor);
  if (!nominal || !value) {
    return std::nullopt;
  }
  return DeviationPercent(*value, *nominal);
}

}  // namespace strake::report
