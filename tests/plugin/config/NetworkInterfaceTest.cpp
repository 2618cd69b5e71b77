// The reader of one network interface: its trail, its properties and the order
// of both.
#include "tests/plugin/config/NetworkScenario.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Lines& Identity() {
  static const Lines kIdentity = {
      "CreationClassName string VELKSG_ServProc_IPProtocolEndpoint",
      "Name string 9999-AC1-Node1-IPInstance#1",
      "SystemCreationClassName string CIM_ComputerSystem",
      "SystemName string SRV1",
      "SourceNode uint8 1",
      "instance string 1",
  };
  return kIdentity;
}

Lines Entered() {
  return {"4 TStrakePluginCallbacks::NetworkInterface entered.", "3 instance = 1"};
}

Lines Completed() { return {"4 TStrakePluginCallbacks::NetworkInterface completed."}; }

// An SP that answers for its first interface and nothing else.
Scenario Interface(const platform::Reply& reply) {
  return std::move(Scenario::Orlo().Answer("4.9.1.1.255", {reply}).Run({kInterfaceClass}));
}

TEST(NetworkInterface, TellsFifteenFieldsInOrderAndSetsSevenOfThem) {
  const std::string record = RecordOf(InterfaceElements());
  const Scenario scenario = Interface(Success(record));
  EXPECT_EQ(LogsOf(scenario, "NetworkInterface"),
            Joined({Entered(),
                    SentLines("4.9.1.1.255", static_cast<int>(record.size())),
                    {
                        "4 [LineType] Vector ID = 1 241",
                        "3 LineType = Ethernet",
                        "4 [Enabled] Vector ID = 2 242",
                        "3 Enabled = Enabled",
                        "4 [HostName] Vector ID = 3 243",
                        "4 [HostName] Data length = 10",
                        "4 [HostName] Max length of string = 9",
                        "3 HostName = sp-lab-7",
                        "4 [HostIPAddress] Vector ID = 4 244",
                        "3 HostIPAddress = 192.0.2.17",
                        "4 [LANDataRate] Vector ID = 5 245",
                        "3 LANDataRate = Auto",
                        "4 [Duplex] Vector ID = 6 246",
                        "3 Duplex = Half",
                        "4 [LocalAdminMACAddress] Vector ID = 7 247",
                        "3 LocalAdminMACAddress = 0.26.43.60.77.94",
                        "4 [DHCPEnabled] Vector ID = 8 248",
                        "3 DHCPEnabled = DHCP then try static IP configuration",
                        "4 [GatewayIPAddress] Vector ID = 9 249",
                        "3 GatewayIPAddress = 192.0.2.1",
                        "4 [BurnedInMACAddress] Vector ID = 10 250",
                        "3 BurnedInMACAddress = 00:1A:2B:3C:4D:5E",
                        "4 [PPPModemCOMPort] Vector ID = 11 251",
                        "3 PPPModemCOMPort = COM1",
                        "4 [PPPRemoteIPAddress] Vector ID = 12 252",
                        "3 PPPRemoteIPAddress = 198.51.100.9",
                        "4 [NetworkMTU] Vector ID = 13 253",
                        "3 NetworkMTU = 200 bytes",
                        "4 [HostIPSubnetMask] Vector ID = 14 254",
                        "3 HostIPSubnetMask = 255.255.255.0",
                        "4 [PPPAuthenticationProtocol] Vector ID = 15 255",
                        "3 PPPAuthenticationProtocol = Allow PAP",
                    },
                    Completed()}));
  EXPECT_EQ(scenario.Record().Properties(1),
            Joined({Identity(),
                    {
                        "Enabled string Enabled",
                        "HostName string sp-lab-7",
                        "HostIPAddress string 192.0.2.17",
                        "DHCPEnabled string DHCP then try static IP configuration",
                        "GatewayIPAddress string 192.0.2.1",
                        "BurnedInMACAddress string 00:1A:2B:3C:4D:5E",
                        "HostIPSubnetMask string 255.255.255.0",
                    }}));
}

TEST(NetworkInterface, SendsOneCommandOfClassTwoWithABufferOf256Bytes) {
  const Scenario scenario = Interface(Success(Bytes({171, 205})));
  EXPECT_EQ(scenario.Record().Beginning({"dot 2 4.9.1.1.255 "}),
            (Lines{"dot 2 4.9.1.1.255 sp 0 size 256 -> true 2 ABCD"}));
}

TEST(NetworkInterface, SetsItsNumberBeforeItTellsItAndEveryFieldAfterwards) {
  const Scenario scenario = Interface(Success(RecordOf(InterfaceElements())));
  const Lines& all = scenario.Record().All();
  const auto place = [&](const std::string& line) {
    const auto found = std::find(all.begin(), all.end(), line);
    EXPECT_NE(found, all.end()) << line;
    return found - all.begin();
  };
  EXPECT_EQ(place("Set 1 instance string 1") + 1, place("log 3 instance = 1"));
  for (const std::string field :
       {"Enabled = Enabled", "HostName = sp-lab-7", "HostIPAddress = 192.0.2.17",
        "GatewayIPAddress = 192.0.2.1", "BurnedInMACAddress = 00:1A:2B:3C:4D:5E",
        "HostIPSubnetMask = 255.255.255.0"}) {
    std::string set = "Set 1 " + field;
    set.replace(set.find('='), 1, "string");
    EXPECT_EQ(place("log 3 " + field) + 1, place(set));
  }
}

TEST(NetworkInterface, WithoutDataKeepsItsKeysAndNumberAndIsPublished) {
  struct Case {
    const char* what;
    platform::Reply reply;
    Lines sent;
  };
  const std::string record = RecordOf(InterfaceElements());
  const Case cases[] = {
      {"failed", Failure(), FailedLines("4.9.1.1.255")},
      {"failed, with bytes and a length", Failure(record, 120), FailedLines("4.9.1.1.255", 120)},
      {"empty", Success(""), SentLines("4.9.1.1.255", 0)},
      {"bytes, but a length of 0", Reported(record, 0), SentLines("4.9.1.1.255", 0)},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const Scenario scenario = Interface(c.reply);
    EXPECT_EQ(LogsOf(scenario, "NetworkInterface"),
              Joined({Entered(),
                      c.sent,
                      {"3 No data retrieved for Network Interface Configuration Summary for "
                       "Instance #1"},
                      Completed()}));
    EXPECT_EQ(scenario.Record().Properties(1), Identity());
    EXPECT_EQ(scenario.Record().Beginning({"Commit"}), (Lines{"Commit 1"}));
  }
}

TEST(NetworkInterface, AnyOtherLengthIsDataAndSaysNothingOfTheElements) {
  const std::string record = RecordOf(InterfaceElements());
  const Lines expected = Interface(Success(record)).Record().Properties(1);
  for (const int length : {1, 2, 255, 256, 257, 65536, 2147483647, -1, -2147483647 - 1}) {
    SCOPED_TRACE(length);
    const Scenario scenario = Interface(Reported(record, length));
    EXPECT_EQ(scenario.Record().Properties(1), expected);
    EXPECT_EQ(scenario.Record().Beginning({"log 3 No data retrieved for Network"}), Lines{});
  }
}

TEST(NetworkInterface, AReplyOfOneByteReadsTheZerosOfTheClearedBuffer) {
  const Scenario scenario = Interface(Success(Bytes({129})));
  Lines fields = LogsOf(scenario, "NetworkInterface");
  std::erase_if(fields, [](const std::string& line) { return line.starts_with("4 "); });
  EXPECT_EQ(fields, (Lines{
                        "3 instance = 1",
                        "3 LineType = None",
                        "3 Enabled = Disabled",
                        "3 HostName = ",
                        "3 HostIPAddress = 0.0.0.0",
                        "3 LANDataRate = None",
                        "3 Duplex = None",
                        "3 LocalAdminMACAddress = 0.0.0.0.0.0",
                        "3 DHCPEnabled = DHCP Disabled",
                        "3 GatewayIPAddress = 0.0.0.0",
                        "3 BurnedInMACAddress = 00:00:00:00:00:00",
                        "3 PPPModemCOMPort = None",
                        "3 PPPRemoteIPAddress = 0.0.0.0",
                        "3 NetworkMTU = 0 bytes",
                        "3 HostIPSubnetMask = 0.0.0.0",
                        "3 PPPAuthenticationProtocol = None",
                    }));
  EXPECT_EQ(LogsOf(scenario, "NetworkInterface").at(5), "4 [LineType] Vector ID = 129 0");
}

}  // namespace
}  // namespace strake::tests
