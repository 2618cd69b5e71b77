// The report for people.
#include "report/TableReport.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::Colour;

std::string Table(const std::vector<cim::StoredInstance>& instances) {
  return Written(report::WriteTable, ReportOf(instances));
}

std::string Table(const std::vector<cim::StoredInstance>& instances,
                  const report::CollectionFacts& facts,
                  report::Secrets secrets = report::Secrets::Masked) {
  return Written(report::WriteTable, ReportOf(instances, facts, secrets));
}

TEST(TableReport, WithoutInstancesSaysSo) {
  EXPECT_EQ(Table({}),
            "rack7 (orlo)\n\nNo instances were collected.\n"
            "0 instances, 1 query, 0 service processors\n");
}

TEST(TableReport, GroupsByServiceProcessorAndThenByClass) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(2, "Fan", 73, 65, 0),
      Sensor(1, "Fan", 74, 65, 0),
      Instance("VELKSG_SP_ComputerSystem", {{"CreationClassName", "VELKSG_SP_ComputerSystem"},
                                            {"SourceNode", Node(2)},
                                            {"Name", "SRV1:Node2"}}),
      Instance("VELKSG_SP_ComputerSystem", {{"CreationClassName", "VELKSG_SP_ComputerSystem"},
                                            {"SourceNode", Node(1)},
                                            {"Name", "SRV1:Node1"},
                                            {"SPClock", SomeTime()}}),
  };
  report::CollectionFacts facts = SomeFacts();
  facts.server.description = "Two cards";
  facts.queries = 2;
  EXPECT_EQ(Table(instances, facts), R"(rack7 (orlo): Two cards

Service processor 1

  Computer system (VELKSG_SP_ComputerSystem)
    Name   SRV1:Node1
    Clock  2010-06-15 13:45:30 UTC-02:00

  Sensors (VELKSG_SP_NumericSensor)
    Fan  74 %

Service processor 2

  Computer system (VELKSG_SP_ComputerSystem)
    Name  SRV1:Node2

  Sensors (VELKSG_SP_NumericSensor)
    Fan  73 %

4 instances, 2 queries, 2 service processors
)");
}

TEST(TableReport, AlignsSensorsByCharactersAndScalesTheirReadings) {
  EXPECT_EQ(Table({Sensor(1, "Planar Voltage +5v", 500, 5, -2), Sensor(1, "Wärme", 2700, 2, -2),
                   Sensor(1, "Cold", -1250, 2, -2), Sensor(1, "Fan 1", 73, 65, 0),
                   Sensor(1, "Fan 2", 4000, 19, 0), Sensor(1, "Odd", 7, 9, 0),
                   Instance("VELKSG_SP_NumericSensor",
                            {{"SourceNode", Node(1)}, {"DeviceID", "Mute-Node1"}})}),
            R"(rack7 (orlo)

Service processor 1

  Sensors (VELKSG_SP_NumericSensor)
    Planar Voltage +5v        5.00 V
    Wärme                    27.00 °C
    Cold                    -12.50 °C
    Fan 1                       73 %
    Fan 2                     4000 RPM
    Odd                          7 unit 9
    Mute-Node1          no reading

7 instances, 1 query, 1 service processor
)");
}

TEST(TableReport, WritesAnInterfaceAsAnAdministratorDoes) {
  EXPECT_EQ(Table({Instance("VELKSG_ServProc_IPProtocolEndpoint",
                            {{"CreationClassName", "VELKSG_ServProc_IPProtocolEndpoint"},
                             {"Name", "9999-AC1-Node1-IPInstance#1"},
                             {"SystemCreationClassName", "CIM_ComputerSystem"},
                             {"SystemName", "SRV1"},
                             {"SourceNode", Node(1)},
                             {"instance", "1"},
                             {"Enabled", "Enabled"},
                             {"HostName", "orlo-a"},
                             {"HostIPAddress", "192.0.2.21"},
                             {"DHCPEnabled", "DHCP Enabled"},
                             {"GatewayIPAddress", "192.0.2.1"},
                             {"BurnedInMACAddress", "00:1A:2B:3C:4D:5E"},
                             {"HostIPSubnetMask", "255.255.255.0"},
                             {"DHCPHostName", "orlo-b"},
                             {"DHCPAssignedIPAddress", "192.0.2.99"},
                             {"DHCPAssignedGatewayAddress", "192.0.2.2"},
                             {"DHCPAssignedSubnetMask", "255.255.0.0"},
                             {"DHCPDomainName", "example.com"},
                             {"DHCPServer", "192.0.2.3"},
                             {"DHCPPrimaryDNS", "192.0.2.4"},
                             {"DHCPSecondaryDNS", "192.0.2.5"},
                             {"DHCPTertiaryDNS", "192.0.2.6"}})}),
            R"(rack7 (orlo)

Service processor 1

  Network interface 1 (VELKSG_ServProc_IPProtocolEndpoint)
    Name                9999-AC1-Node1-IPInstance#1
    System              SRV1 (CIM_ComputerSystem)
    State               Enabled
    Host name           orlo-a
    Address             192.0.2.21/24 (255.255.255.0)
    Addressing          DHCP Enabled
    Gateway             192.0.2.1
    MAC                 00:1A:2B:3C:4D:5E
    DHCP host name      orlo-b
    DHCP address        192.0.2.99/16 (255.255.0.0)
    DHCP gateway        192.0.2.2
    DHCP domain         example.com
    DHCP server         192.0.2.3
    DHCP primary DNS    192.0.2.4
    DHCP secondary DNS  192.0.2.5
    DHCP tertiary DNS   192.0.2.6

1 instance, 1 query, 1 service processor
)");
}

TEST(TableReport, LosesNoPropertyThatStandsWithoutTheOneItBelongsTo) {
  EXPECT_EQ(Table({Instance("VELKSG_ServProc_IPProtocolEndpoint",
                            {{"SystemCreationClassName", "CIM_ComputerSystem"},
                             {"HostIPSubnetMask", "255.255.255.0"},
                             {"DHCPAssignedIPAddress", "192.0.2.99"}})}),
            R"(rack7 (orlo)

No service processor

  Network interface (VELKSG_ServProc_IPProtocolEndpoint)
    System class  CIM_ComputerSystem
    Subnet mask   255.255.255.0
    DHCP address  192.0.2.99

1 instance, 1 query, 0 service processors
)");
}

TEST(TableReport, ShowsSharedClassNamesAndMasksSecrets) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_ServProc_DialProtocolEndpoint1",
               {{"CreationClassName", "VELKSG_ServProc_DialProtocolEndpoint"},
                {"SourceNode", Node(1)},
                {"SystemName", "SRV1"},
                {"Instance", "2"},
                {"DialoutID", ""},
                {"DialoutPassword", "hunter2"},
                {"PPPPassword", ""}})};
  const std::string masked = R"(rack7 (orlo)

Service processor 1

  Dial-out entry 2 (VELKSG_ServProc_DialProtocolEndpoint1)
    Creation class  VELKSG_ServProc_DialProtocolEndpoint
    System          SRV1
    Login ID
    Password        ********
    PPP password

1 instance, 1 query, 1 service processor
)";
  EXPECT_EQ(Table(instances), masked);
  std::string clear = masked;
  clear.replace(clear.find("********"), 8, "hunter2");
  EXPECT_EQ(Table(instances, SomeFacts(), report::Secrets::Shown), clear);
}

TEST(TableReport, ShowsNoControlByteOfAServiceProcessor) {
  const cim::StoredInstance system =
      Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", Node(1)}, {"Name", "a\x1b[2J\nb\xFF"}});
  report::CollectionFacts facts = SomeFacts();
  facts.server = {"x\x1b", "y\r", "tavit"};
  EXPECT_EQ(Table({system, system, Sensor(1, "Fan\x07", 1, 65, 0)}, facts),
            R"(x\x1B (tavit): y\r

Service processor 1

  Computer system (VELKSG_SP_ComputerSystem)
    Name  a\x1B[2J\nb\xFF

  Computer system (VELKSG_SP_ComputerSystem)
    Name  a\x1B[2J\nb\xFF

  Sensors (VELKSG_SP_NumericSensor)
    Fan\x07  1 %

3 instances, 1 query, 1 service processor
warning: 2 instances of VELKSG_SP_ComputerSystem have equal keys: SourceNode=1, Name=a\x1B[2J\nb\xFF
)");
}

TEST(TableReport, ColoursHeadingsAndNothingElse) {
  const std::vector<cim::StoredInstance> instances = {Sensor(1, "Fan", 1, 65, 0)};
  EXPECT_EQ(Written(report::WriteTable, ReportOf(instances), {.colour = Colour::Terminal}),
            "\x1b[1mrack7 (orlo)\x1b[0m\n\n\x1b[1mService processor 1\x1b[0m\n\n"
            "  \x1b[1mSensors (VELKSG_SP_NumericSensor)\x1b[0m\n    Fan  1 %\n\n"
            "1 instance, 1 query, 1 service processor\n");
}

}  // namespace
}  // namespace strake::tests
