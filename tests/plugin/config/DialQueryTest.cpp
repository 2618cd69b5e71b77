// Which dial readers a query runs, for which SPs, and what those that nobody
// asked for leave in the trail.
#include "tests/plugin/config/DialScenario.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Classes kAllDial = {kSerialPort, kDialout, kDialin, kAlerts};
const Classes kAllClasses = {"VELKSG_SP_ComputerSystem",
                             "VELKSG_ServProc_IPProtocolEndpoint2",
                             "VELKSG_ServProc_IPProtocolEndpoint",
                             kSerialPort,
                             kDialout,
                             kDialin,
                             kAlerts,
                             "VELKSG_SP_NumericSensor"};

// Class names in the order in which their instances were committed.
Lines Created(const Scenario& scenario) {
  Lines names;
  for (const std::string& line : scenario.Record().Beginning({"CreateInstance"})) {
    names.push_back(line.substr(line.rfind(' ') + 1));
  }
  EXPECT_EQ(scenario.Record().Beginning({"Commit"}).size(), names.size());
  return names;
}

struct Reader {
  const char* className;
  const char* name;
  Lines identifiers;  // of what it sends
  int instances;
  bool completesUnasked;
};

std::vector<Reader> Readers() {
  return {
      {kDialout, "getDialoutSettings", {"4.1.3.1.255", "4.1.3.2.255"}, 2, false},
      {kDialin,
       "getDialinSettings",
       {"4.1.4.1.255", "4.1.4.1.9", "4.4.2", "4.1.4.1.3", "4.1.4.2.255", "4.1.4.2.9", "4.4.2",
        "4.1.4.2.3"},
       2,
       true},
      {kSerialPort, "getSerialPortData", {"4.1.2.1.255", "4.1.2.2.255"}, 2, true},
      {kAlerts, "getDialOutAlerts", {"4.2.1.1"}, 1, true},
  };
}

TEST(DialQuery, ReadsTheClassesThatAreAskedForAndEntersTheOtherReadersInVain) {
  for (unsigned int asked = 1; asked < 16; ++asked) {
    SCOPED_TRACE(asked);
    Scenario scenario = DialServer(1, 2, 2);
    Classes classes;
    Lines readerLines;
    Lines sent;
    Lines created;
    unsigned int bit = 1;
    for (const Reader& reader : Readers()) {
      const bool isAsked = (asked & bit) != 0;
      for (int instance = 1; instance <= reader.instances; ++instance) {
        const std::string line = std::string("log 4 TStrakePluginCallbacks::") + reader.name;
        readerLines.push_back(line + " entered. Instance #" + std::to_string(instance));
        if (isAsked) {
          created.push_back(reader.className);
        }
        if (isAsked || reader.completesUnasked) {
          readerLines.push_back(line + " completed.");
        }
      }
      if (isAsked) {
        classes.push_back(reader.className);
        sent = Join({sent, reader.identifiers});
      }
      bit <<= 1;
    }
    scenario.Run(classes);
    EXPECT_EQ(scenario.Record().Beginning({"log 4 TStrakePluginCallbacks::get"}), readerLines);
    EXPECT_EQ(Created(scenario), created);
    Lines identifiers;
    for (const std::string& line : scenario.Record().Beginning({"dot 2 4."})) {
      identifiers.push_back(line.substr(6, line.find(" sp") - 6));
    }
    EXPECT_EQ(identifiers, sent);
    // Both counts are asked for in any case.
    EXPECT_EQ(scenario.Record().Beginning({"count"}),
              (Lines{"count 4.1.3.1.255 -> 2", "count 4.1.4.1.255 -> 2"}));
  }
}

TEST(DialQuery, AReaderThatIsNotAskedForHasNothingBetweenItsLines) {
  Scenario scenario = DialServer(1, 1, 1);
  scenario.Run({kAlerts});
  const Lines logs = scenario.Record().Logs();
  EXPECT_EQ(
      Between(logs, "3 DialoutSettings instances = 1", "3 DialOutAlerts instances = 1"),
      (Lines{"3 DialoutSettings instances = 1", "3 DialoutSettings instance #1",
             "4 TStrakePluginCallbacks::getDialoutSettings entered. Instance #1",
             "3 DialinSettings instances = 1", "3 DialinSettings instance #1",
             "4 TStrakePluginCallbacks::getDialinSettings entered. Instance #1",
             "4 TStrakePluginCallbacks::getDialinSettings completed.", "3 SerialPort instances = 2",
             "3 SerialPort instance #1",
             "4 TStrakePluginCallbacks::getSerialPortData entered. Instance #1",
             "4 TStrakePluginCallbacks::getSerialPortData completed.", "3 SerialPort instance #2",
             "4 TStrakePluginCallbacks::getSerialPortData entered. Instance #2",
             "4 TStrakePluginCallbacks::getSerialPortData completed.",
             "3 DialOutAlerts instances = 1"}));
}

TEST(DialQuery, TheOrderOfTheRequestIsNotTheOrderOfTheReading) {
  Classes reversed = kAllDial;
  std::reverse(reversed.begin(), reversed.end());
  Scenario first = DialServer(1, 1, 1);
  Scenario second = DialServer(1, 1, 1);
  first.Run(kAllDial);
  second.Run(reversed);
  const Lines order = {kDialout, kDialin, kSerialPort, kSerialPort, kAlerts};
  EXPECT_EQ(Created(first), order);
  EXPECT_EQ(Created(second), order);
}

TEST(DialQuery, TheNetworkComesBeforeTheDialClassesInAQueryOfAllEight) {
  Classes reversed = kAllClasses;
  std::reverse(reversed.begin(), reversed.end());
  for (const Classes& classes : {kAllClasses, reversed}) {
    Scenario scenario = DialServer(2, 1, 1);
    scenario.Run(classes);
    EXPECT_EQ(scenario.Record().Beginning({"log 4 TStrakePluginCallbacks::tcpip"}).size(), 4U);
    EXPECT_EQ(scenario.Record().Beginning(
                  {"log 4 TStrakePluginCallbacks::dial", "log 4 TStrakePluginCallbacks::get",
                   "log 3 DialoutSettings", "log 3 DialinSettings", "log 3 SerialPort inst",
                   "log 3 DialOutAlerts", "log 3 Begin collecting", "dot 2 4.1.", "dot 2 4.2."}),
              Lines{});
    for (const std::string& line : scenario.Record().Beginning({"CreateInstance"})) {
      EXPECT_NE(line.find("IPProtocolEndpoint"), std::string::npos) << line;
    }
  }
}

TEST(DialQuery, TheDialClassesComeBeforeTheSensorsAndTheComputerSystem) {
  for (const char* const dialClass : {kSerialPort, kDialout, kDialin, kAlerts}) {
    Scenario scenario = DialServer(1, 1, 1);
    scenario.Answer("4.4.1", Bytes({9, 3, 7, 0, 14, 5, 9}));
    scenario.Run({"VELKSG_SP_NumericSensor", "VELKSG_SP_ComputerSystem", dialClass});
    const Lines created = Created(scenario);
    EXPECT_FALSE(created.empty());
    EXPECT_EQ(std::count(created.begin(), created.end(), dialClass),
              static_cast<long>(created.size()));
  }
}

TEST(DialQuery, EachServiceProcessorHasItsOwnInstancesUnderItsOwnName) {
  Scenario scenario = DialServer(3, 1, 1);
  // The second one does not answer its presence test.
  scenario.Answer("1.1", {Failure()}, 1).Run(kAllDial);
  EXPECT_EQ(Created(scenario), (Lines{kDialout, kDialin, kSerialPort, kSerialPort, kAlerts,
                                      kDialout, kDialin, kSerialPort, kSerialPort, kAlerts}));
  for (unsigned long instance = 1; instance <= 10; ++instance) {
    const std::string node = instance <= 5 ? "1" : "3";
    EXPECT_EQ(Property(scenario, instance, "SourceNode"), "uint8 " + node);
    EXPECT_EQ(Property(scenario, instance, "Name"), "string 9999-AC1-Node" + node);
    EXPECT_EQ(Property(scenario, instance, "SystemName"), "string SRV1");
    EXPECT_EQ(Property(scenario, instance, "CreationClassName"),
              "string VELKSG_ServProc_DialProtocolEndpoint");
  }
  EXPECT_EQ(scenario.Record().Beginning({"log 4 Sent command: 4.2.1.1"}),
            (Lines{"log " + Answered("4.2.1.1", 28, 0).at(1),
                   "log " + Answered("4.2.1.1", 28, 2).at(1)}));
}

TEST(DialQuery, UnknownMachineAndSystemStandInTheNames) {
  Scenario scenario = DialServer(1, 1, 1);
  scenario.server.host.machineTypeModel = {"no type", true};
  scenario.server.host.systemName = {"no name", true};
  scenario.Run(kAllDial);
  for (unsigned long instance = 1; instance <= 5; ++instance) {
    EXPECT_EQ(Property(scenario, instance, "Name"), "string Unknown MTM-Node1");
    EXPECT_EQ(Property(scenario, instance, "SystemName"), "string Unknown SystemName");
  }
}

}  // namespace
}  // namespace strake::tests
