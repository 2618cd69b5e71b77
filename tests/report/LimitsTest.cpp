// What limits say of sensors.
#include "report/Limits.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace strake::tests {
namespace {

using report::Bound;
using report::LimitRule;
using report::Limits;
using report::SensorKind;
using report::SensorState;

Bound At(double value, const std::string& text) { return {value, text}; }

report::Judgement JudgementOf(const cim::StoredInstance& instance, const Limits& limits) {
  return report::Judge(report::SensorOf(instance), limits);
}

// Critical below 1.5, a warning below 2.5, a warning above 7.5, critical above 8.5.
Limits AllBounds() {
  return {{.lowerCritical = At(1.5, "1.5"),
           .lowerWarning = At(2.5, "2.5"),
           .upperWarning = At(7.5, "7.5"),
           .upperCritical = At(8.5, "8.5")}};
}

TEST(Limits, CallAReadingFineThatEqualsABound) {
  const struct {
    int hundredths;
    SensorState state;
    std::string text;
  } cases[] = {
      {-100, SensorState::Critical, "Core is -1.00 V, below 1.5 V"},
      {149, SensorState::Critical, "Core is 1.49 V, below 1.5 V"},
      {150, SensorState::Warning, "Core is 1.50 V, below 2.5 V"},
      {249, SensorState::Warning, "Core is 2.49 V, below 2.5 V"},
      {250, SensorState::Ok, ""},
      {500, SensorState::Ok, ""},
      {750, SensorState::Ok, ""},
      {751, SensorState::Warning, "Core is 7.51 V, above 7.5 V"},
      {850, SensorState::Warning, "Core is 8.50 V, above 7.5 V"},
      {851, SensorState::Critical, "Core is 8.51 V, above 8.5 V"},
  };
  for (const auto& one : cases) {
    const auto judgement = JudgementOf(Sensor(1, "Core", one.hundredths, 5, -2), AllBounds());
    EXPECT_EQ(judgement.state, one.state) << one.hundredths;
    EXPECT_EQ(judgement.text, one.text);
  }
}

// No decimal of two places is a double but those of quarters.
TEST(Limits, CompareDecimalsAsTheyAreWritten) {
  for (int hundredths = -500; hundredths <= 500; ++hundredths) {
    const std::string text = report::SensorOf(Sensor(1, "S", hundredths, 5, -2)).reading;
    const Limits limits = {
        {.lowerCritical = At(std::stod(text), text), .upperCritical = At(std::stod(text), text)}};
    const auto state = [&limits](int reading, int modifier) {
      return JudgementOf(Sensor(1, "S", reading, 5, modifier), limits).state;
    };
    ASSERT_EQ(state(hundredths, -2), SensorState::Ok) << text;
    ASSERT_EQ(state(hundredths * 10, -3), SensorState::Ok) << text;
    ASSERT_EQ(state(hundredths * 10 - 1, -3), SensorState::Critical) << text;
    ASSERT_EQ(state(hundredths * 10 + 1, -3), SensorState::Critical) << text;
  }
}

TEST(Limits, TakeEachBoundFromTheLastRuleThatMatchesAndStatesIt) {
  const Limits limits = {
      {.lowerWarning = At(10, "10"), .upperWarning = At(50, "50"), .upperCritical = At(60, "60")},
      {.sensor = "CPU*", .upperWarning = At(70, "70")},
      {.sensor = "CPU 2", .upperWarning = At(80, "80"), .upperCritical = At(90, "90")},
      {.sensor = "*2"},
      {.sensor = "DASD*", .upperWarning = At(1, "1")},
  };
  const struct {
    std::string name;
    int reading;
    std::string text;
  } cases[] = {
      {"Ambient", 9, "Ambient is 9 °C, below 10 °C"},
      {"Ambient", 51, "Ambient is 51 °C, above 50 °C"},
      {"Ambient", 61, "Ambient is 61 °C, above 60 °C"},
      {"CPU 1", 9, "CPU 1 is 9 °C, below 10 °C"},
      {"CPU 1", 60, ""},
      {"CPU 1", 61, "CPU 1 is 61 °C, above 60 °C"},
      {"CPU 2", 80, ""},
      {"CPU 2", 81, "CPU 2 is 81 °C, above 80 °C"},
      {"CPU 2", 91, "CPU 2 is 91 °C, above 90 °C"},
      {"CPU 2", 9, "CPU 2 is 9 °C, below 10 °C"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(JudgementOf(Sensor(1, one.name, one.reading, 2, 0), limits).text, one.text);
  }
}

TEST(Limits, HoldForTheSensorsThatTheirRuleNames) {
  const Bound five = At(5, "5");
  const struct {
    LimitRule rule;
    bool holds;
  } cases[] = {
      {{}, true},
      {{.sensor = "Fan 01 speed"}, true},
      {{.sensor = "fan*"}, true},
      {{.sensor = "Fan ?? SPEED"}, true},
      {{.sensor = ""}, false},
      {{.sensor = "Fan"}, false},
      {{.kind = SensorKind::Fan}, true},
      {{.kind = SensorKind::Temperature}, false},
      {{.kind = SensorKind::Other}, false},
      {{.sp = 2}, true},
      {{.sp = 1}, false},
      {{.sensor = "Fan*", .kind = SensorKind::Fan, .sp = 2}, true},
      {{.sensor = "CPU*", .kind = SensorKind::Fan, .sp = 2}, false},
      {{.sensor = "Fan*", .kind = SensorKind::Voltage, .sp = 2}, false},
      {{.sensor = "Fan*", .kind = SensorKind::Fan, .sp = 3}, false},
  };
  for (const auto& one : cases) {
    LimitRule rule = one.rule;
    rule.upperCritical = five;
    const auto judgement = JudgementOf(Sensor(2, "Fan 01 speed ", 12, 65, 0), {rule});
    EXPECT_EQ(judgement.state, one.holds ? SensorState::Critical : SensorState::Ok) << rule.sensor;
    EXPECT_EQ(judgement.text, one.holds ? "Fan 01 speed is 12 %, above 5 %" : "");
  }
}

TEST(Limits, OfAServiceProcessorHoldForNoSensorWithoutOne) {
  const auto instance =
      Instance("VELKSG_SP_NumericSensor", {{"DeviceID", "Fan"}, {"CurrentReading", 7}});
  const Bound five = At(5, "5");
  EXPECT_EQ(JudgementOf(instance, {{.sp = 1, .upperWarning = five}}).text, "");
  EXPECT_EQ(JudgementOf(instance, {{.upperWarning = five}}).text, "Fan is 7, above 5");
}

TEST(Limits, SayNothingOfASensorWithoutAReading) {
  const auto mute = Instance("VELKSG_SP_NumericSensor", {{"DeviceID", "Fan"}});
  EXPECT_EQ(JudgementOf(mute, AllBounds()).text, "");
  const report::Sensor silent = report::SensorOf(report::SilentSensor{1, "Fan", SensorKind::Fan});
  EXPECT_EQ(report::Judge(silent, AllBounds()).text, "");
}

TEST(Limits, CompareReadingsBeyondEveryDouble) {
  constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
  const Limits limits = {
      {.lowerWarning = At(-1e308, "-1e308"), .upperWarning = At(1e308, "1e308")}};
  const struct {
    int reading;
    int modifier;
    std::string text;
  } cases[] = {
      {7, kHighest, "S is 7e2147483647 unit 3, above 1e308 unit 3"},
      {-7, kHighest, "S is -7e2147483647 unit 3, below -1e308 unit 3"},
      {7, kLowest, ""},
      {-7, kLowest, ""},
      {0, kHighest, ""},
      {7, 19, ""},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(JudgementOf(Sensor(1, "S", one.reading, 3, one.modifier), limits).text, one.text);
  }
}

TEST(Limits, NameASensorSafely) {
  EXPECT_EQ(JudgementOf(Sensor(1, "a\x1b[2J\n\xFF", 9, 19, 0), AllBounds()).text,
            "a\\x1B[2J\\n\\xFF is 9 RPM, above 8.5 RPM");
}

TEST(Limits, GiveStatesToSensorsWithReadingsAndFindingsToThoseThatAreNotFine) {
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "A", 5, 65, 0), Sensor(2, "B", 8, 65, 0), Sensor(1, "C", 9, 65, 0),
                     Instance("VELKSG_SP_NumericSensor", {{"DeviceID", "D"}})},
       .silentSensors = {{1, "E", SensorKind::Fan}}},
      report::Secrets::Masked, AllBounds());
  std::vector<std::optional<SensorState>> states;
  for (const report::Sensor& sensor : report.Sensors()) {
    states.push_back(sensor.state);
  }
  EXPECT_TRUE(report.HasStates());
  EXPECT_EQ(states, (std::vector<std::optional<SensorState>>{
                        SensorState::Ok, SensorState::Warning, SensorState::Critical, {}, {}}));
  ASSERT_EQ(report.Findings().size(), 2U);
  EXPECT_EQ(report.Findings()[0],
            (report::Finding{report::Severity::Critical, report::FindingCode::Limit, 1,
                             "C is 9 %, above 8.5 %"}));
  EXPECT_EQ(report.Findings()[1],
            (report::Finding{report::Severity::Warning, report::FindingCode::Limit, 2,
                             "B is 8 %, above 7.5 %"}));
}

TEST(Limits, OfNoRuleCallEveryReadingFineAndNoLimitsNone) {
  const std::vector<cim::StoredInstance> instances = {Sensor(1, "A", 5, 65, 0)};
  const report::Report without = ReportOf(instances);
  EXPECT_FALSE(without.HasStates());
  EXPECT_EQ(without.Sensors()[0].state, std::nullopt);
  const report::Report with({.facts = SomeFacts(), .instances = instances}, report::Secrets::Masked,
                            Limits{});
  EXPECT_TRUE(with.HasStates());
  EXPECT_EQ(with.Sensors()[0].state, SensorState::Ok);
}

}  // namespace
}  // namespace strake::tests
