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

int CountOf(std::string_view text, std::string_view part) {
  int count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

TEST(TableReport, WithoutInstancesSaysSo) {
  EXPECT_EQ(Table({}),
            "rack7 (orlo)\n\nNo instances were collected.\n"
            "0 instances, 1 query, 0 service processors\n");
}

// Two cards that answered, one of them with troubles, and one that did not.
report::Report TroubledReport() {
  const report::Limits limits = {
      {.sensor = "Fan*", .lowerCritical = report::Bound{20, "20"}},
      {.kind = report::SensorKind::Temperature, .upperWarning = report::Bound{40, "40"}}};
  report::CollectionFacts facts = SomeFacts();
  facts.server.description = "Three cards";
  facts.queries = 2;
  return report::Report(
      {.facts = facts,
       .instances =
           {Sensor(2, "Fan 1", 73, 65, 0), Sensor(1, "Core +5v", 503, 5, -2),
            Sensor(1, "Core -12v", -1214, 5, -2), Sensor(1, "CPU 1", 4200, 2, -2),
            Sensor(1, "Ambient", 2350, 2, -2), Sensor(1, "Fan 1", 12, 65, 0),
            Instance("VELKSG_ServProc_IPProtocolEndpoint",
                     {{"SourceNode", Node(1)}, {"instance", "1"}, {"HostIPAddress", "192.0.2.21"}}),
            Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", Node(2)}, {"Name", "SRV1:Node2"}}),
            Instance("VELKSG_SP_ComputerSystem",
                     {{"SourceNode", Node(1)}, {"Name", "SRV1:Node1"}, {"SPClock", SomeTime()}})},
       .processors = {{1, report::Answer::Yes}, {2, report::Answer::Yes}, {3, report::Answer::No}},
       .silentSensors = {{1, "CPU 2", report::SensorKind::Temperature},
                         {1, "Fan 2", report::SensorKind::Fan}},
       .findings = {{report::Severity::Info, report::FindingCode::SensorUnanswered, 1,
                     "2 sensors did not answer"},
                    {report::Severity::Warning, report::FindingCode::SpSilent, 3,
                     "it did not answer"}}},
      report::Secrets::Masked, limits);
}

TEST(TableReport, ShowsFirstWhatMattersThenEverythingByServiceProcessorAndThenFindings) {
  EXPECT_EQ(Written(report::WriteTable, TroubledReport()), R"(rack7 (orlo): Three cards

SP 1  answered        192.0.2.21  2010-06-15 13:45:30 UTC-02:00
  Temperatures  3  23.50 to 42.00 °C  1 warning, 1 did not answer
  Fans          2  12 %               1 critical, 1 did not answer
  Voltages      2  -12.14 to 5.03 V
SP 2  answered
  Fans          1  73 %
SP 3  did not answer

Findings: 1 critical, 2 warnings, 1 info
  critical  SP 1  Fan 1 is 12 %, below 20 %
  warning   SP 3  it did not answer
  warning   SP 1  CPU 1 is 42.00 °C, above 40 °C

Service processor 1

  Computer system (VELKSG_SP_ComputerSystem)
    Name   SRV1:Node1
    Clock  2010-06-15 13:45:30 UTC-02:00

  Sensors (VELKSG_SP_NumericSensor)
    Temperatures
      CPU 1          42.00 °C  warning
      Ambient        23.50 °C  ok
      CPU 2      no answer
    Fans
      Fan 1             12 %   critical
      Fan 2      no answer
    Voltages
      Core +5v        5.03 V   ok
      Core -12v     -12.14 V   ok

  Network interface 1 (VELKSG_ServProc_IPProtocolEndpoint)
    Address  192.0.2.21

Service processor 2

  Computer system (VELKSG_SP_ComputerSystem)
    Name  SRV1:Node2

  Sensors (VELKSG_SP_NumericSensor)
    Fans
      Fan 1  73 %  ok

Service processor 3

  did not answer

Findings
  critical  SP 1  Fan 1 is 12 %, below 20 %
  warning   SP 3  it did not answer
  warning   SP 1  CPU 1 is 42.00 °C, above 40 °C
  info      SP 1  2 sensors did not answer

1 of 3 service processors did not answer
2 of 7 sensors on SP 1 did not answer
9 instances, 2 queries, 3 service processors
)");
}

TEST(TableReport, IsRowsOfDataAloneWithoutItsHeader) {
  EXPECT_EQ(Written(report::WriteTable, TroubledReport(), {.header = false}),
            R"(SP 1  system       Name       SRV1:Node1
SP 1  system       Clock      2010-06-15 13:45:30 UTC-02:00
SP 1  temperature  CPU 1          42.00 °C  warning
SP 1  temperature  Ambient        23.50 °C  ok
SP 1  temperature  CPU 2      no answer
SP 1  fan          Fan 1             12 %   critical
SP 1  fan          Fan 2      no answer
SP 1  voltage      Core +5v        5.03 V   ok
SP 1  voltage      Core -12v     -12.14 V   ok
SP 1  network 1    Address    192.0.2.21
SP 2  system  Name   SRV1:Node2
SP 2  fan     Fan 1  73 %  ok
SP 1  finding  critical  Fan 1 is 12 %, below 20 %
SP 3  finding  warning   it did not answer
SP 1  finding  warning   CPU 1 is 42.00 °C, above 40 °C
SP 1  finding  info      2 sensors did not answer
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

SP 1  answered  192.0.2.21

Findings: none

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

SP 1  answered

Findings: none

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

SP 1  answered
  Fans  1  1 %

Findings: 1 warning
  warning  2 instances of VELKSG_SP_ComputerSystem have equal keys: SourceNode=1, Name=a\x1B[2J\nb\xFF

Service processor 1

  Computer system (VELKSG_SP_ComputerSystem)
    Name  a\x1B[2J\nb\xFF

  Computer system (VELKSG_SP_ComputerSystem)
    Name  a\x1B[2J\nb\xFF

  Sensors (VELKSG_SP_NumericSensor)
    Fans
      Fan\x07  1 %

Findings
  warning  2 instances of VELKSG_SP_ComputerSystem have equal keys: SourceNode=1, Name=a\x1B[2J\nb\xFF

3 instances, 1 query, 1 service processor
)");
}

TEST(TableReport, ColoursHeadingsAndWhatSomebodyHasToLookAt) {
  const report::Report report = TroubledReport();
  std::string coloured = Written(report::WriteTable, report, {.colour = Colour::Terminal});
  const struct {
    std::string begin;
    std::string what;
    int count;
  } expected[] = {
      {"\x1b[1m", "rack7 (orlo): Three cards", 1},
      {"\x1b[1m", "SP 1", 1},
      {"\x1b[1m", "Findings: 1 critical, 2 warnings, 1 info", 1},
      {"\x1b[1m", "Service processor 3", 1},
      {"\x1b[1m", "Sensors (VELKSG_SP_NumericSensor)", 2},
      {"\x1b[1m", "Temperatures", 1},
      {"\x1b[1m", "Network interface 1 (VELKSG_ServProc_IPProtocolEndpoint)", 1},
      {"\x1b[1m", "Findings", 1},
      {"\x1b[31m", "critical", 3},
      {"\x1b[31m", "1 critical, 1 did not answer", 1},
      {"\x1b[33m", "warning", 5},
      {"\x1b[33m", "1 warning, 1 did not answer", 1},
      {"\x1b[33m", "no answer", 2},
      {"\x1b[33m", "did not answer", 2},
      {"\x1b[33m", "1 of 3 service processors did not answer", 1},
      {"\x1b[33m", "2 of 7 sensors on SP 1 did not answer", 1},
      {"\x1b[34m", "info", 1},
  };
  for (const auto& one : expected) {
    EXPECT_EQ(CountOf(coloured, one.begin + one.what + "\x1b[0m"), one.count) << one.what;
  }
  EXPECT_EQ(CountOf(coloured, " ok\x1b"), 0);
  for (const std::string part : {"\x1b[1m", "\x1b[31m", "\x1b[33m", "\x1b[34m", "\x1b[0m"}) {
    for (std::size_t at = coloured.find(part); at != std::string::npos; at = coloured.find(part)) {
      coloured.erase(at, part.size());
    }
  }
  EXPECT_EQ(coloured, Written(report::WriteTable, report));
}

TEST(TableReport, ShowsServiceProcessorsThatBroughtNothing) {
  const report::Report report(
      {.facts = SomeFacts(), .processors = {{1, report::Answer::No}, {2, report::Answer::Yes}}},
      report::Secrets::Masked);
  EXPECT_EQ(Written(report::WriteTable, report), R"(rack7 (orlo)

SP 1  did not answer
SP 2  answered

Findings: none

Service processor 1

  did not answer

No instances were collected.
1 of 2 service processors did not answer
0 instances, 1 query, 2 service processors
)");
}

TEST(TableReport, CountsNoServiceProcessorThatWasNotAskedAsSilent) {
  const report::Report report(
      {.facts = SomeFacts(),
       .processors = {{1, report::Answer::NotAsked}},
       .findings = {{report::Severity::Warning, report::FindingCode::Held, 1, "it is held"}}},
      report::Secrets::Masked);
  EXPECT_EQ(Written(report::WriteTable, report), R"(rack7 (orlo)

SP 1  not asked

Findings: 1 warning
  warning  SP 1  it is held

Service processor 1

  not asked

No instances were collected.
0 instances, 1 query, 1 service processor
)");
}

TEST(TableReport, ShowsFindingsWithoutAnyServiceProcessor) {
  const report::Report report({.facts = SomeFacts(),
                               .findings = {{report::Severity::Warning, report::FindingCode::NoSp,
                                             std::nullopt, "no service processor"}}},
                              report::Secrets::Masked);
  EXPECT_EQ(Written(report::WriteTable, report), R"(rack7 (orlo)

Findings: 1 warning
  warning  no service processor

No instances were collected.
0 instances, 1 query, 0 service processors
)");
  EXPECT_EQ(Written(report::WriteTable, report, {.header = false}),
            "-  finding  warning  no service processor\n");
}

TEST(TableReport, TellsOfSilentSensorsOfManyServiceProcessorsInOneLine) {
  report::Collected collected{.facts = SomeFacts()};
  for (int sp = 1; sp <= 20; ++sp) {
    collected.silentSensors.push_back({sp, "Fan", report::SensorKind::Fan});
    if (sp != 3) {
      collected.instances.push_back(Sensor(static_cast<std::uint8_t>(sp), "Core", 1, 5, 0));
    }
  }
  const std::string table =
      Written(report::WriteTable, report::Report(std::move(collected), report::Secrets::Masked));
  std::string expected =
      "\n\n1 of 2 sensors on SP 1 did not answer\n"
      "1 of 2 sensors on SP 2 did not answer\n"
      "1 of 1 sensor on SP 3 did not answer\n";
  for (int sp = 4; sp <= 16; ++sp) {
    expected += "1 of 2 sensors on SP " + std::to_string(sp) + " did not answer\n";
  }
  expected +=
      "4 of 8 sensors on 4 further service processors did not answer\n"
      "19 instances, 1 query, 20 service processors\n";
  EXPECT_TRUE(table.ends_with(expected)) << table;
}

}  // namespace
}  // namespace strake::tests
