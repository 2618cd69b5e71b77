// Scales of charts: which readings their ends stand for.
#pragma once

#include "report/Sensor.h"

#include <map>
#include <optional>
#include <span>
#include <string>

namespace strake::report {

// low <= 0 <= high, and low < high.
struct Scale {
  double low = 0;
  double high = 1;

  friend bool operator==(const Scale&, const Scale&) = default;
};

// Round ends around both values; values that are no numbers for a chart give an
// end that is one.
Scale ScaleAround(double lowest, double highest);

// Where the value stands between the ends, in percent; values beyond an end
// stand at it.
double PlaceOn(const Scale& scale, double value);

// The scales of a whole page, so that all of its charts can be compared.
class ChartScales {
 public:
  explicit ChartScales(std::span<const Sensor> sensors);

  // Null when such a sensor has no bar: it has no reading, or its unit is not
  // known.
  [[nodiscard]] const Scale* Of(const Sensor& sensor) const;
  // Of deviations from nominal voltages, in percent: +-5, +-10 or +-20.
  [[nodiscard]] const Scale& Deviations() const { return fDeviations; }

 private:
  std::map<std::string, Scale, std::less<>> fByUnit;
  Scale fDeviations;
};

// By how many percent of what its name states; empty when its name states
// nothing or there is no reading.
std::optional<double> Deviation(const Sensor& sensor);

}  // namespace strake::report
