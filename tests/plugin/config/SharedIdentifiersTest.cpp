// The process-wide identifiers: how they begin, and what each query leaves.
#include "plugin/config/SharedIdentifiers.h"
#include "tests/plugin/config/NetworkScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string Dotted(DotIdentifier& identifier) {
  std::string text;
  for (const unsigned char byte : identifier.Bytes()) {
    text += (text.empty() ? "" : ".") + std::to_string(byte);
  }
  return text;
}

// As a process leaves them whose network readers have not run yet.
void ExpectDialIdentifiersUntouched() {
  SharedIdentifiers& identifiers = Identifiers();
  EXPECT_EQ(Dotted(identifiers.serialPort), "4.1.2.1.255");
  EXPECT_EQ(Dotted(identifiers.dialout), "4.1.3.1.255");
  EXPECT_EQ(Dotted(identifiers.dialin), "4.1.4.1.255");
  EXPECT_EQ(Dotted(identifiers.dialinAuthority), "4.1.4.1.9");
  EXPECT_EQ(Dotted(identifiers.dialinLastLogin), "4.1.4.1.3");
  EXPECT_EQ(Dotted(identifiers.dialOutAlerts), "4.2.1.255");
}

void ExpectNetworkIdentifiers(const std::string& interface, const std::string& dhcp) {
  EXPECT_EQ(Dotted(Identifiers().networkInterface), "4.9.1." + interface + ".255");
  int value = 0;
  for (DotIdentifier& identifier : Identifiers().dhcpValues) {
    ++value;
    EXPECT_EQ(Dotted(identifier), "4.9.1." + dhcp + ".16." + std::to_string(value));
  }
}

TEST(SharedIdentifiers, BeginAtTheirFirstInstances) {
  Identifiers() = SharedIdentifiers{};
  ExpectDialIdentifiersUntouched();
  ExpectNetworkIdentifiers("1", "1");
}

TEST(SharedIdentifiers, AddressingAnInstanceOverwritesTheFourthByteAndNoOther) {
  for (int instance = 0; instance <= 255; ++instance) {
    SharedIdentifiers identifiers;
    const std::string number = std::to_string(instance);
    identifiers.networkInterface.Address(static_cast<unsigned char>(instance));
    EXPECT_EQ(Dotted(identifiers.networkInterface), "4.9.1." + number + ".255");
    identifiers.dhcpValues[8].Address(static_cast<unsigned char>(instance));
    EXPECT_EQ(Dotted(identifiers.dhcpValues[8]), "4.9.1." + number + ".16.9");
    identifiers.dialOutAlerts.Address(static_cast<unsigned char>(instance));
    EXPECT_EQ(Dotted(identifiers.dialOutAlerts), "4.2.1." + number);
  }
}

TEST(SharedIdentifiers, StayAsTheLastQueryLeftThem) {
  struct Case {
    const char* what;
    Classes classes;
    int count;  // of interfaces; -1: not known
    bool list;
    const char* machineType;
    const char* interface;
    const char* dhcp;
  };
  const Case cases[] = {
      {"summary alone", {kSummaryClass}, 2, true, "9999", "1", "1"},
      {"two interfaces", {kInterfaceClass}, 2, true, "9999", "2", "2"},
      {"two interfaces and the summary",
       {kInterfaceClass, kSummaryClass},
       2,
       true,
       "9999",
       "2",
       "2"},
      // The count is taken with a 2 in any case, and that stays.
      {"one interface", {kInterfaceClass}, 1, true, "9999", "2", "1"},
      {"no interface", {kInterfaceClass}, 0, true, "9999", "2", "1"},
      {"count not known", {kInterfaceClass}, -1, true, "9999", "2", "1"},
      {"second one not shown", {kInterfaceClass}, 2, true, "5201", "2", "1"},
      {"no list", {kInterfaceClass}, 2, false, "9999", "1", "1"},
      {"nothing requested", {}, 2, true, "9999", "1", "1"},
  };
  for (const Case& c : cases) {
    for (const int sps : {1, 2}) {
      SCOPED_TRACE(c.what);
      Scenario scenario = NetworkServer(sps);
      scenario.server.sp.components.clear();
      if (c.count >= 0) {
        scenario.Component(kInterfaceList, c.count);
      }
      scenario.server.sp.commandList = c.list;
      scenario.server.host.machineTypeModel = {c.machineType, false};
      scenario.Run(c.classes);
      ExpectNetworkIdentifiers(c.interface, c.dhcp);
      ExpectDialIdentifiersUntouched();
    }
  }
}

// What one SP is asked about one interface.
Lines AskedAbout(const std::string& spAndInterface) {
  Lines commands = {spAndInterface + ".255"};
  for (const char value : std::string("123456789")) {
    commands.push_back(spAndInterface + ".16." + value);
  }
  return commands;
}

// What one SP is asked in one query for its interfaces.
Lines Asked(const std::string& sp, bool both) {
  const Lines first = AskedAbout(sp + " 4.9.1.1");
  if (!both) {
    return Joined({first, {"count 4.9.1.2.255 -> 1"}});
  }
  return Joined({first, {"count 4.9.1.2.255 -> 2"}, AskedAbout(sp + " 4.9.1.2")});
}

TEST(SharedIdentifiers, AreAddressedAnewForEachInterfaceOfEachSPAndQuery) {
  Scenario scenario = NetworkServer(2);
  scenario.RunAll({{kInterfaceClass}, {kInterfaceClass}});
  EXPECT_EQ(Commands(scenario),
            Joined({Asked("0", true), Asked("1", true), Asked("0", true), Asked("1", true)}));
  ExpectNetworkIdentifiers("2", "2");
}

TEST(SharedIdentifiers, AreCountedWithATwoHoweverManyInterfacesThereAre) {
  Scenario scenario = NetworkServer(2);
  scenario.Component(kInterfaceList, 1).RunAll({{kInterfaceClass}, {kInterfaceClass}});
  EXPECT_EQ(Commands(scenario),
            Joined({Asked("0", false), Asked("1", false), Asked("0", false), Asked("1", false)}));
  ExpectNetworkIdentifiers("2", "1");
}

TEST(SharedIdentifiers, AQueryThatDoesNotAskForInterfacesLeavesTheirsAlone) {
  Scenario scenario = NetworkServer();
  scenario.RunAll({{kInterfaceClass}, {kSummaryClass}, {"VELKSG_SP_ComputerSystem"}, {}});
  ExpectNetworkIdentifiers("2", "2");
  scenario.RunAll({{kInterfaceClass}, {"VELKSG_ServProc_DialProtocolEndpoint3"}});
  ExpectNetworkIdentifiers("2", "2");
  EXPECT_EQ(Dotted(Identifiers().serialPort), "4.1.2.2.255");
}

}  // namespace
}  // namespace strake::tests
