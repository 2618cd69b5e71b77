// The scales that pictures of sensors are drawn on.
#include "report/ChartScale.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>
#include <limits>

namespace strake::tests {
namespace {

using report::ChartScales;
using report::Scale;
using report::ScaleAround;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

report::Sensor Read(report::SensorKind kind, const std::string& name, const std::string& reading,
                    const std::string& unit) {
  return {.instance = nullptr,
          .sp = 1,
          .name = name,
          .kind = kind,
          .reading = reading,
          .unit = unit,
          .state = std::nullopt};
}

TEST(ChartScale, EndsAtRoundNumbersAndHoldsZero) {
  struct Case {
    double lowest;
    double highest;
    Scale expected;
  };
  const std::vector<Case> cases = {
      {22.5, 42.75, {0, 50}},
      {0, 5125, {0, 6000}},
      {0, 100, {0, 100}},
      {0, 100.5, {0, 120}},
      {-12.5, 30, {-16, 30}},
      {-3, -1, {-3, 0}},
      {0, 0, {0, 1}},
      {0, 0.071, {0, 0.08}},
      {0, kInfinity, {0, 1e12}},
      {-kInfinity, 0, {-1e12, 0}},
      {0, std::numeric_limits<double>::quiet_NaN(), {0, 1}},
      {0, 5e-324, {0, 1}},
  };
  for (const Case& one : cases) {
    const Scale scale = ScaleAround(one.lowest, one.highest);
    EXPECT_DOUBLE_EQ(scale.low, one.expected.low) << one.highest;
    EXPECT_DOUBLE_EQ(scale.high, one.expected.high) << one.highest;
  }
}

TEST(ChartScale, PlacesAValueBetweenItsEnds) {
  EXPECT_EQ(report::PlaceOn({0, 50}, 25), 50);
  EXPECT_EQ(report::PlaceOn({-5, 5}, 0), 50);
  EXPECT_EQ(report::PlaceOn({-5, 5}, -7), 0);
  EXPECT_EQ(report::PlaceOn({-5, 5}, kInfinity), 100);
}

TEST(ChartScale, IsOneForAllSensorsOfAUnit) {
  using enum report::SensorKind;
  const std::vector<report::Sensor> sensors = {Read(Temperature, "one", "22.50", "°C"),
                                               Read(Temperature, "two", "42.75", "°C"),
                                               Read(Temperature, "mute", "", "°C"),
                                               Read(Fan, "slow", "40", "%"),
                                               Read(Fan, "quick", "5125", "RPM"),
                                               Read(Voltage, "5 Voltage", "5.60", "V"),
                                               Read(Other, "odd", "7", "9"),
                                               Read(Power, "none", "", "W")};
  const ChartScales scales(sensors);
  const auto of = [&](std::size_t index) { return scales.Of(sensors.at(index)); };
  ASSERT_NE(of(0), nullptr);
  EXPECT_EQ(of(1), of(0));
  EXPECT_EQ(*of(0), (Scale{0, 50}));
  EXPECT_EQ(of(2), nullptr);
  EXPECT_EQ(*of(3), (Scale{0, 100}));
  EXPECT_EQ(*of(4), (Scale{0, 6000}));
  EXPECT_EQ(of(5), nullptr);
  EXPECT_EQ(of(6), nullptr);
  EXPECT_EQ(of(7), nullptr);
  EXPECT_EQ(scales.Deviations(), (Scale{-20, 20}));
}

TEST(ChartScale, OfDeviationsIsOneOfThree) {
  struct Case {
    std::string reading;
    double most;
  };
  const std::vector<Case> cases = {
      {"10.00", 5}, {"10.50", 5}, {"9.40", 10}, {"11.10", 20}, {"-10", 20}, {"1e400", 20},
  };
  for (const Case& one : cases) {
    const std::vector<report::Sensor> sensors = {
        Read(report::SensorKind::Voltage, "10 Voltage", one.reading, "V")};
    EXPECT_EQ(ChartScales(sensors).Deviations(), (Scale{-one.most, one.most})) << one.reading;
  }
}

}  // namespace
}  // namespace strake::tests
