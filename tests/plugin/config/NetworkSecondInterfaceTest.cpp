// Whether an SP's second interface is published: the count of its interfaces
// and the machine's type.
#include "tests/plugin/config/NetworkScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

// All of the record from the second instance's creation to the driver's end.
Lines Tail(const Scenario& scenario) {
  return Between(scenario.Record().All(), "CreateInstance 2 VELKSG_ServProc_IPProtocolEndpoint",
                 "log 4 TStrakePluginCallbacks::tcpipcommands completed.");
}

Lines Created(const std::string& machineType) {
  return {
      "CreateInstance 2 VELKSG_ServProc_IPProtocolEndpoint",
      "Set 2 CreationClassName string VELKSG_ServProc_IPProtocolEndpoint",
      "Set 2 Name string " + machineType + "-Node1-IPInstance#2",
      "GetSystemCreationClassName -> CIM_ComputerSystem",
      "Set 2 SystemCreationClassName string CIM_ComputerSystem",
      "Set 2 SystemName string SRV1",
      "Set 2 SourceNode uint8 1",
  };
}

Lines ListPassed() {
  return {"buildDotCommandList -> true", "log 4 1.1 command passed : got dotcommand list."};
}

const std::string kCompleted = "log 4 TStrakePluginCallbacks::tcpipcommands completed.";

Scenario Machine(const std::string& machineType) {
  Scenario scenario = NetworkServer();
  scenario.server.host.machineTypeModel = {machineType, false};
  scenario.Run({kInterfaceClass});
  return scenario;
}

bool PublishesTwo(const Scenario& scenario) {
  const Lines commits = scenario.Record().Beginning({"Commit"});
  EXPECT_TRUE(commits == Lines{"Commit 1"} || commits == (Lines{"Commit 1", "Commit 2"}));
  return commits.size() == 2;
}

TEST(NetworkSecondInterface, IsCreatedAndNotPublishedWhenTheListCannotBeBuilt) {
  Scenario scenario = NetworkServer();
  scenario.server.sp.commandList = false;
  scenario.Run({kInterfaceClass});
  EXPECT_EQ(Tail(scenario),
            Joined({Created("9999-AC1"),
                    {"buildDotCommandList -> false",
                     "log 4 1.1 command failed: can not build dotcommand list.", kCompleted}}));
  EXPECT_FALSE(PublishesTwo(scenario));
  // The class is looked up for it, as for any instance.
  EXPECT_EQ(scenario.Record().Beginning({"GetClass"}),
            Lines(2, "GetClass VELKSG_ServProc_IPProtocolEndpoint"));
}

TEST(NetworkSecondInterface, IsCreatedAndNotPublishedWhenNobodyKnowsTheCount) {
  Scenario scenario = NetworkServer();
  scenario.server.sp.components.clear();
  scenario.Run({kInterfaceClass});
  EXPECT_EQ(Tail(scenario),
            Joined({Created("9999-AC1"),
                    ListPassed(),
                    {"count 4.9.1.2.255 -> -1", "log 3 cmd_NetworkInterface instances = -1",
                     "log 3 Failed to get componentcmdlist for dialoutsettings.", kCompleted}}));
  EXPECT_FALSE(PublishesTwo(scenario));
}

TEST(NetworkSecondInterface, IsCreatedAndNotPublishedWhenThereIsOneInterfaceOrNone) {
  for (const int count : {0, 1}) {
    Scenario scenario = NetworkServer();
    scenario.Component(kInterfaceList, count).Run({kInterfaceClass});
    const std::string number = std::to_string(count);
    EXPECT_EQ(Tail(scenario),
              Joined({Created("9999-AC1"),
                      ListPassed(),
                      {"count 4.9.1.2.255 -> " + number,
                       "log 3 cmd_NetworkInterface instances = " + number, kCompleted}}));
    EXPECT_FALSE(PublishesTwo(scenario));
    EXPECT_EQ(scenario.Record().Properties(1).at(1), "Name string 9999-AC1-Node1-IPInstance#1");
  }
}

TEST(NetworkSecondInterface, IsReadAndPublishedWhenThereAreTwoOrMore) {
  for (const int count : {2, 3, 128, 254}) {
    Scenario scenario = NetworkServer();
    scenario.Component(kInterfaceList, count).Run({kInterfaceClass});
    const std::string number = std::to_string(count);
    const Lines tail = Tail(scenario);
    const Lines begin = Joined(
        {Created("9999-AC1"),
         ListPassed(),
         {"count 4.9.1.2.255 -> " + number, "log 3 cmd_NetworkInterface instances = " + number,
          "log 4 MTM.substr(0,4) = 9999", "log 4 TStrakePluginCallbacks::NetworkInterface entered.",
          "Set 2 instance string 2", "log 3 instance = 2"}});
    ASSERT_GT(tail.size(), begin.size() + 3);
    EXPECT_EQ(Lines(tail.begin(), tail.begin() + static_cast<long>(begin.size())), begin);
    EXPECT_EQ(Lines(tail.end() - 3, tail.end()),
              (Lines{"log 4 TStrakePluginCallbacks::IndividualDHCPValues completed.", "Commit 2",
                     kCompleted}));
    EXPECT_TRUE(PublishesTwo(scenario));
    EXPECT_EQ(Commands(scenario).size(), 21U);  // no third interface is looked at
  }
}

TEST(NetworkSecondInterface, CarriesItsOwnRecordAndDhcpValues) {
  Scenario scenario = NetworkServer();
  scenario.Answer("4.9.1.2.255", RecordOf(With(InterfaceElements(), 3, Text(3, 3, "second"))));
  scenario.Run({kInterfaceClass});
  EXPECT_EQ(scenario.Record().Properties(2),
            (Lines{
                "CreationClassName string VELKSG_ServProc_IPProtocolEndpoint",
                "Name string 9999-AC1-Node1-IPInstance#2",
                "SystemCreationClassName string CIM_ComputerSystem",
                "SystemName string SRV1",
                "SourceNode uint8 1",
                "instance string 2",
                "Enabled string Enabled",
                "HostName string second",
                "HostIPAddress string 192.0.2.17",
                "DHCPEnabled string DHCP then try static IP configuration",
                "GatewayIPAddress string 192.0.2.1",
                "BurnedInMACAddress string 00:1A:2B:3C:4D:5E",
                "HostIPSubnetMask string 255.255.255.0",
                "DHCPHostName string host-2",
                "DHCPAssignedIPAddress string 10.2.0.2",
                "DHCPAssignedGatewayAddress string 10.2.0.3",
                "DHCPAssignedSubnetMask string 10.2.0.4",
                "DHCPDomainName string lan-2.example",
                "DHCPServer string 10.2.0.6",
                "DHCPPrimaryDNS string 10.2.0.7",
                "DHCPSecondaryDNS string 10.2.0.8",
                "DHCPTertiaryDNS string 10.2.0.9",
            }));
}

TEST(NetworkSecondInterface, WithoutDataIsPublishedWithItsKeysAndNumber) {
  Scenario scenario = Scenario::Orlo();
  scenario.Component(kInterfaceList, 2).Run({kInterfaceClass});
  EXPECT_EQ(scenario.Record().Properties(2).size(), 6U);
  EXPECT_EQ(scenario.Record().Properties(2).back(), "instance string 2");
  EXPECT_EQ(scenario.Record().Beginning({"log 3 No data retrieved for Network"}),
            (Lines{"log 3 No data retrieved for Network Interface Configuration Summary for "
                   "Instance #1",
                   "log 3 No data retrieved for Network Interface Configuration Summary for "
                   "Instance #2"}));
  EXPECT_TRUE(PublishesTwo(scenario));
}

TEST(NetworkSecondInterface, IsNotPublishedOnTheSeventeenMachineTypesThatShowOne) {
  for (const std::string type :
       {"5217", "5216", "5215", "5214", "5213", "5212", "5211", "5210", "5209", "5208", "5207",
        "5206", "5205", "5204", "5203", "5202", "5201"}) {
    for (const std::string& machineType : {type, type + "-AC1", type + "5218"}) {
      SCOPED_TRACE(machineType);
      const Scenario scenario = Machine(machineType);
      EXPECT_EQ(Tail(scenario),
                Joined({Created(machineType),
                        ListPassed(),
                        {"count 4.9.1.2.255 -> 2", "log 3 cmd_NetworkInterface instances = 2",
                         "log 4 MTM.substr(0,4) = " + type, kCompleted}}));
      EXPECT_FALSE(PublishesTwo(scenario));
    }
  }
}

TEST(NetworkSecondInterface, IsPublishedOnAnyOtherMachine) {
  struct Case {
    const char* machineType;
    const char* compared;
  };
  const Case cases[] = {
      {"5218-AC1", "5218"},
      {"5200-AC1", "5200"},
      {"5120-AC1", "5120"},
      {"15201", "1520"},
      {" 5201", " 520"},
      {"x5201", "x520"},
      {"-5201", "-520"},
      {"abcd", "abcd"},
      // Shorter than four characters: compared as it is.
      {"520", "520"},
      {"52", "52"},
      {"5", "5"},
      {"", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.machineType);
    const Scenario scenario = Machine(c.machineType);
    EXPECT_TRUE(PublishesTwo(scenario));
    EXPECT_EQ(scenario.Record().Beginning({"log 4 MTM."}),
              (Lines{std::string("log 4 MTM.substr(0,4) = ") + c.compared}));
    EXPECT_EQ(scenario.Record().Properties(2).at(1),
              std::string("Name string ") + c.machineType + "-Node1-IPInstance#2");
  }
}

TEST(NetworkSecondInterface, IsPublishedWhenTheHostDoesNotKnowTheMachine) {
  Scenario scenario = NetworkServer();
  scenario.server.host.machineTypeModel = {"no such device", true};
  scenario.Run({kInterfaceClass});
  EXPECT_EQ(scenario.Record().Beginning({"log 4 MTM."}), (Lines{"log 4 MTM.substr(0,4) = Unkn"}));
  EXPECT_TRUE(PublishesTwo(scenario));
  EXPECT_EQ(scenario.Record().Properties(2).at(1), "Name string Unknown MTM-Node1-IPInstance#2");
}

}  // namespace
}  // namespace strake::tests
