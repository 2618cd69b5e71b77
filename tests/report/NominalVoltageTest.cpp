// What a voltage's name says that it should be.
#include "plugin/environ/KestleSensors.h"
#include "plugin/environ/OrloSensors.h"
#include "report/NominalVoltage.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

using report::NominalVoltage;

TEST(NominalVoltage, IsWhatTheSensorsOwnNameStates) {
  struct Case {
    std::string_view name;
    std::optional<double> nominal;
  };
  const std::vector<Case> cases = {
      {"Planar Voltage +5v", 5},
      {"Planar Voltage +3.3v", 3.3},
      {"Planar Voltage -12v", -12},
      {"Planar Voltage +1.25v", 1.25},
      {"12 Voltage", 12},
      {"-12 Voltage", -12},
      {"3.3 Voltage", 3.3},
      {"3.3V Remote", 3.3},
      {"18V Remote", 18},
      {"  5v  ", 5},
      {"Rail -5 Voltage", -5},
      {"5v of 5V", 5},
      // Nothing is stated.
      {"", std::nullopt},
      {"VRM 01", std::nullopt},
      {"CPU Vtt", std::nullopt},
      {"CPU Core Voltage", std::nullopt},
      {"CPU 1 Core Voltage", std::nullopt},
      {"CPU 1 Voltage", std::nullopt},
      {"Planar Battery Voltage", std::nullopt},
      {"12", std::nullopt},
      {"+", std::nullopt},
      {"+v", std::nullopt},
      {"3V3", std::nullopt},
      {"5VSB", std::nullopt},
      {"5. v", std::nullopt},
      {"infv nanV 0x5v", std::nullopt},
      {"--5v", std::nullopt},
      // No voltage can be off by a part of nothing.
      {"0v", std::nullopt},
      {"-0.0V", std::nullopt},
      // Which of the two?
      {"5v to 12v", std::nullopt},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(NominalVoltage(one.name), one.nominal) << one.name;
  }
  // A number that nobody means.
  EXPECT_EQ(NominalVoltage(std::string(400, '9') + "v"), std::nullopt);
}

TEST(NominalVoltage, IsStatedByAllVoltagesButThese) {
  std::set<std::string> silent;
  const auto look = [&silent](std::string_view name) {
    if (!NominalVoltage(name)) {
      silent.emplace(name);
    }
  };
  for (const OrloSensorEntry& entry : kOrloVoltages) {
    look(entry.name);
  }
  for (const TavitFamily& family : kTavitFamilies) {
    for (const char* const name : family.voltages.names) {
      look(name);
    }
  }
  EXPECT_EQ(silent,
            (std::set<std::string>{"CPU 1 Core Voltage", "CPU 2 Core Voltage", "CPU Core Voltage",
                                   "CPU Vtt", "Planar Battery Voltage", "VRM 01", "VRM 02"}));
}

TEST(NominalVoltage, DeviationIsOfTheSize) {
  EXPECT_DOUBLE_EQ(report::DeviationPercent(5.25, 5), 5);
  EXPECT_DOUBLE_EQ(report::DeviationPercent(-12.6, -12), 5);
  EXPECT_DOUBLE_EQ(report::DeviationPercent(-11.4, -12), -5);
  EXPECT_DOUBLE_EQ(report::DeviationPercent(0, 3.3), -100);
  EXPECT_DOUBLE_EQ(report::DeviationPercent(12, -12), -200);
}

}  // namespace
}  // namespace strake::tests
