// What commands and lists are called, and that the plug-in's tables are all there.
#include "findings/Commands.h"
#include "findings/TavitLists.h"
#include "tests/support/Scenario.h"

#include <gtest/gtest.h>
#include <set>

namespace strake::tests {
namespace {

std::span<const unsigned char> View(const std::string& bytes) {
  return {reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()};
}

TEST(Commands, HaveNamesForPeople) {
  const std::pair<const char*, const char*> kNames[] = {
      {"1.1", "presence test"},
      {"4.4.1", "SP clock"},
      {"4.9.3.1.1", "Contact"},
      {"4.9.3.1.3", "SNMP traps"},
      {"4.9.3.2.255", "DNS Configuration Summary"},
      {"4.9.1.2.255", "network interface 2"},
      {"4.9.1.0.255", "network interface 0"},
      {"4.9.1.255.16.9", "DHCP tertiary DNS of interface 255"},
      {"4.1.4.12.3", "dial-in last login 12"},
      {"4.2.1.1", "dial-out alerts 1"},
      {"2.3.16", "Fan 16 speed"},
      {"4.4", "command 4.4"},
      {"4.4.1.0", "command 4.4.1.0"},
      {"4.1.5.1.255", "command 4.1.5.1.255"},
      {"4.9.1.2.16.10", "command 4.9.1.2.16.10"},
  };
  for (const auto& [identifier, name] : kNames) {
    EXPECT_EQ(findings::CommandForPeople(View(Id(identifier))), name) << identifier;
  }
}

TEST(Commands, OfThePlugInHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const NamedIdentifier& command : AllIdentifiers()) {
    const std::string name = findings::CommandForPeople(command.identifier.Bytes());
    EXPECT_TRUE(names.insert(name).second) << name;
    EXPECT_FALSE(name.starts_with("command ")) << name;
    EXPECT_NE(findings::Packed(command.identifier.Bytes()), 0U) << name;
  }
}

TEST(Commands, ThatReadSensorsAreFoundAtTheirPlaces) {
  std::size_t sensors = 0;
  for (const NamedIdentifier& command : AllIdentifiers()) {
    const auto place = findings::FindOrloSensor(findings::Packed(command.identifier.Bytes()));
    const bool isSensor = command.identifier.Bytes()[0] == 2;
    ASSERT_EQ(place.has_value(), isSensor) << command.name;
    if (isSensor) {
      EXPECT_EQ(findings::OrloSensors()[*place].name, command.name);
      EXPECT_EQ(*place, sensors++);
    }
  }
  EXPECT_EQ(sensors, 42U);
  EXPECT_EQ(findings::FindOrloSensor(0), std::nullopt);
}

TEST(Commands, OfDifferentBytesArePackedIntoDifferentNumbers) {
  EXPECT_NE(findings::Packed(View(Bytes({0}))), findings::Packed(View(Bytes({0, 0}))));
  EXPECT_NE(findings::Packed(View(Bytes({1, 0}))), findings::Packed(View(Bytes({0, 1}))));
  EXPECT_NE(findings::Packed(View(std::string(7, '\xFF'))),
            findings::Packed(View(std::string(6, '\xFF'))));
  EXPECT_EQ(findings::Packed(View(std::string(8, '\1'))), 0U);
}

TEST(TavitLists, BelongToTheFamilyOfTheMachineType) {
  const std::pair<const char*, std::optional<std::size_t>> kMachines[] = {
      {"5120", 0},  {"5122-21X", 0}, {"5123", 1}, {"5125", 2}, {"5126", 3},
      {"51289", 3}, {"5129", {}},    {"512", {}}, {"", {}},    {" 5120", {}},
  };
  for (const auto& [machine, family] : kMachines) {
    EXPECT_EQ(findings::FindTavitFamily(machine), family) << machine;
  }
}

TEST(TavitLists, HaveAsManyFansAsTheFamilyOrTheLengthSays) {
  struct Fans {
    std::size_t family;
    unsigned char length;
    std::size_t fans;
  };
  for (const auto& [family, length, fans] :
       {Fans{0, 16, 5}, Fans{0, 18, 6}, Fans{0, 22, 8}, Fans{0, 255, 9}, Fans{0, 6, 0},
        Fans{1, 15, 5}, Fans{2, 28, 9}, Fans{3, 18, 0}}) {
    EXPECT_EQ(
        findings::SensorNames(std::span(kTavitFamilies)[family], findings::TavitList::Fans, length)
            .size(),
        fans)
        << family << " " << int{length};
  }
}

}  // namespace
}  // namespace strake::tests
