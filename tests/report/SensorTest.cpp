// A numeric sensor as every format shows it.
#include "report/Sensor.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace strake::tests {
namespace {

using report::SensorKind;
using report::SensorState;

SensorKind KindOf(const cim::StoredInstance& instance) { return report::SensorOf(instance).kind; }

TEST(SensorKindOf, IsWhatItsUnitMeasures) {
  const std::vector<std::pair<std::uint16_t, SensorKind>> cases = {
      {2, SensorKind::Temperature}, {19, SensorKind::Fan},    {65, SensorKind::Fan},
      {5, SensorKind::Voltage},     {6, SensorKind::Current}, {7, SensorKind::Power},
      {0, SensorKind::Other},       {3, SensorKind::Other},   {65535, SensorKind::Other},
  };
  for (const auto& [unit, kind] : cases) {
    EXPECT_EQ(KindOf(Sensor(1, "S", 1, unit, 0)), kind) << unit;
  }
  EXPECT_EQ(KindOf(Instance("VELKSG_SP_NumericSensor", {})), SensorKind::Other);
}

TEST(SensorKindOf, HasANameAndAHeading) {
  const std::vector<std::tuple<SensorKind, std::string, std::string>> kinds = {
      {SensorKind::Temperature, "temperature", "Temperatures"},
      {SensorKind::Fan, "fan", "Fans"},
      {SensorKind::Voltage, "voltage", "Voltages"},
      {SensorKind::Current, "current", "Currents"},
      {SensorKind::Power, "power", "Power"},
      {SensorKind::Other, "other", "Others"},
  };
  ASSERT_EQ(kinds.size(), report::kSensorKinds);
  for (const auto& [kind, name, heading] : kinds) {
    EXPECT_EQ(report::KindName(kind), name);
    EXPECT_EQ(report::KindHeading(kind), heading);
    EXPECT_EQ(report::FindSensorKind(name), kind);
  }
  for (const std::string unknown : {"", "Fan", "fans", "Fans"}) {
    EXPECT_EQ(report::FindSensorKind(unknown), std::nullopt) << unknown;
  }
}

TEST(SensorStateOf, HasAName) {
  EXPECT_EQ(report::StateName(SensorState::Ok), "ok");
  EXPECT_EQ(report::StateName(SensorState::Warning), "warning");
  EXPECT_EQ(report::StateName(SensorState::Critical), "critical");
}

TEST(SensorName, IsItsDescriptionElseItsDeviceWithoutBlanksAtTheEnd) {
  const std::vector<std::pair<Properties, std::string>> cases = {
      {{{"SensorDescription", "Fan"}, {"DeviceID", "Fan-Node1"}}, "Fan"},
      {{{"DeviceID", "Fan-Node1"}}, "Fan-Node1"},
      {{{"SensorDescription", "DASD Sensor 2 Temperature "}}, "DASD Sensor 2 Temperature"},
      {{{"SensorDescription", "  a  b  "}}, "  a  b"},
      {{{"SensorDescription", "a\t"}}, "a\t"},
      {{{"SensorDescription", "   "}}, ""},
      {{{"SensorDescription", ""}, {"DeviceID", "Fan-Node1"}}, ""},
      {{{"SensorDescription", "a\x1b\n"}}, "a\x1b\n"},
      {{}, "(no name)"},
  };
  for (const auto& [properties, name] : cases) {
    const cim::StoredInstance instance = Instance("VELKSG_SP_NumericSensor", properties);
    EXPECT_EQ(report::SensorOf(instance).name, name);
  }
}

TEST(SensorOf, KnowsWhatItIsOf) {
  const cim::StoredInstance instance = Sensor(3, "Core", -1204, 5, -2);
  const report::Sensor sensor = report::SensorOf(instance);
  EXPECT_EQ(sensor.instance, &instance);
  EXPECT_EQ(sensor.sp, 3);
  EXPECT_EQ(sensor.reading, "-12.04");
  EXPECT_EQ(sensor.unit, "V");
  EXPECT_EQ(sensor.state, std::nullopt);
  EXPECT_EQ(report::ReadingForPeople(sensor), "-12.04");
  EXPECT_EQ(report::UnitForPeople(sensor), "V");
}

TEST(SensorOf, HasNoServiceProcessorAndNoReadingWhereNoneIsSet) {
  const cim::StoredInstance bare = Instance("VELKSG_SP_NumericSensor", {{"BaseUnits", Units(9)}});
  const report::Sensor sensor = report::SensorOf(bare);
  EXPECT_EQ(sensor.sp, std::nullopt);
  EXPECT_EQ(sensor.reading, "");
  EXPECT_EQ(report::ReadingValue(sensor), std::nullopt);
  EXPECT_EQ(report::ReadingForPeople(sensor), "no reading");
  EXPECT_EQ(report::UnitForPeople(sensor), "unit 9");
}

TEST(SensorOf, ASilentOneHasNoReadingAndSaysSo) {
  const report::Sensor sensor =
      report::SensorOf(report::SilentSensor{2, "Fan 01 speed ", SensorKind::Fan});
  EXPECT_EQ(sensor.instance, nullptr);
  EXPECT_EQ(sensor.sp, 2);
  EXPECT_EQ(sensor.name, "Fan 01 speed");
  EXPECT_EQ(sensor.kind, SensorKind::Fan);
  EXPECT_EQ(report::ReadingValue(sensor), std::nullopt);
  EXPECT_EQ(report::ReadingForPeople(sensor), "no answer");
  EXPECT_EQ(report::UnitForPeople(sensor), "");
}

TEST(ReadingValue, IsTheNumberOfTheText) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const std::vector<std::pair<std::string, std::optional<double>>> cases = {
      {"", std::nullopt},
      {"0", 0},
      {"5.00", 5},
      {"-12.04", -12.04},
      {"-0.05", -0.05},
      {"7e19", 7e19},
      {"-7e-19", -7e-19},
      {"1e308", 1e308},
      {"1e309", kInfinity},
      {"7e2147483647", kInfinity},
      {"-7e2147483647", -kInfinity},
      {"7e-2147483648", 0},
      {"-7e-2147483648", 0},
      {"0e2147483647", 0},
      {"0e-2147483648", 0},
      {"5 V", std::nullopt},
      {"five", std::nullopt},
  };
  for (const auto& [reading, value] : cases) {
    report::Sensor sensor;
    sensor.reading = reading;
    EXPECT_EQ(report::ReadingValue(sensor), value) << reading;
  }
}

// Every sensor of the report is found by its instance, no other instance is.
TEST(FindSensor, FindsTheSensorOfAnInstance) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(1, "A", 1, 65, 0), Instance("VELKSG_SP_ComputerSystem", {{"Name", "x"}}),
      Sensor(2, "B", 2, 65, 0), Sensor(1, "C", 3, 65, 0)};
  const report::Report report({.facts = SomeFacts(),
                               .instances = instances,
                               .silentSensors = {{1, "Z", SensorKind::Fan}, {2, "Y"}}},
                              report::Secrets::Masked);
  std::vector<std::string> names;
  for (const report::Sensor& sensor : report.Sensors()) {
    names.push_back(sensor.name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"A", "B", "C", "Z", "Y"}));
  const std::vector<std::string> found = {"A", "", "B", "C"};
  for (std::size_t i = 0; i < found.size(); ++i) {
    const report::Sensor* const sensor = report.FindSensor(report.Instances()[i]);
    EXPECT_EQ(sensor == nullptr ? "" : sensor->name, found[i]);
  }
  EXPECT_EQ(report.FindSensor(instances[0]), nullptr);
}

TEST(FindSensor, FindsNothingInAReportOfSilentSensors) {
  const auto instance = Sensor(1, "A", 1, 65, 0);
  const report::Report report({.facts = SomeFacts(), .silentSensors = {{1, "Z", SensorKind::Fan}}},
                              report::Secrets::Masked);
  EXPECT_EQ(report.FindSensor(instance), nullptr);
}

TEST(FindSensor, FindsItAfterTheReportWasMoved) {
  report::Report first = ReportOf({Sensor(1, "A", 1, 65, 0), Sensor(1, "B", 2, 65, 0)});
  const report::Report report = std::move(first);
  ASSERT_NE(report.FindSensor(report.Instances()[1]), nullptr);
  EXPECT_EQ(report.FindSensor(report.Instances()[1])->name, "B");
}

}  // namespace
}  // namespace strake::tests
