// The driver of the dial readers: how many instances it reads and in which order.
#include "tests/plugin/config/DialScenario.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <stdexcept>

namespace strake::tests {
namespace {

const Classes kAllDial = {kSerialPort, kDialout, kDialin, kAlerts};

// "READER entered" and, where it follows, "completed", as the trail words them.
Lines Reader(const std::string& name, int instance) {
  const std::string prefix = "4 TStrakePluginCallbacks::" + name;
  return {prefix + " entered. Instance #" + std::to_string(instance), prefix + " completed."};
}

// A group's lines: its count, then each instance with its reader.
Lines Group(const std::string& name, const std::string& reader, int count) {
  Lines lines = {"3 " + name + " instances = " + std::to_string(count)};
  for (int instance = 1; instance <= count; ++instance) {
    lines.push_back("3 " + name + " instance #" + std::to_string(instance));
    lines = Join({lines, Reader(reader, instance)});
  }
  return lines;
}

const Lines kBuilt = {"4 1.1 command passed : got dotcommand list.",
                      "4 TStrakePluginCallbacks::dialcommands entered."};

Lines PortsAndAlerts() {
  return Join({Group("SerialPort", "getSerialPortData", 2),
               Group("DialOutAlerts", "getDialOutAlerts", 1),
               {"4 TStrakePluginCallbacks::dialcommands completed."}});
}

TEST(DialDriver, ReadsDialoutsThenDialinsThenPortsThenAlerts) {
  Scenario scenario = DialServer(1, 3, 2);
  scenario.Run(kAllDial);
  EXPECT_EQ(DriverLines(scenario),
            (Lines{"4 1.1 command passed : got dotcommand list.",
                   "4 TStrakePluginCallbacks::dialcommands entered.",
                   "3 DialoutSettings instances = 3",
                   "3 DialoutSettings instance #1",
                   "4 TStrakePluginCallbacks::getDialoutSettings entered. Instance #1",
                   "4 TStrakePluginCallbacks::getDialoutSettings completed.",
                   "3 DialoutSettings instance #2",
                   "4 TStrakePluginCallbacks::getDialoutSettings entered. Instance #2",
                   "4 TStrakePluginCallbacks::getDialoutSettings completed.",
                   "3 DialoutSettings instance #3",
                   "4 TStrakePluginCallbacks::getDialoutSettings entered. Instance #3",
                   "4 TStrakePluginCallbacks::getDialoutSettings completed.",
                   "3 DialinSettings instances = 2",
                   "3 DialinSettings instance #1",
                   "4 TStrakePluginCallbacks::getDialinSettings entered. Instance #1",
                   "4 TStrakePluginCallbacks::getDialinSettings completed.",
                   "3 DialinSettings instance #2",
                   "4 TStrakePluginCallbacks::getDialinSettings entered. Instance #2",
                   "4 TStrakePluginCallbacks::getDialinSettings completed.",
                   "3 SerialPort instances = 2",
                   "3 SerialPort instance #1",
                   "4 TStrakePluginCallbacks::getSerialPortData entered. Instance #1",
                   "4 TStrakePluginCallbacks::getSerialPortData completed.",
                   "3 SerialPort instance #2",
                   "4 TStrakePluginCallbacks::getSerialPortData entered. Instance #2",
                   "4 TStrakePluginCallbacks::getSerialPortData completed.",
                   "3 DialOutAlerts instances = 1",
                   "3 DialOutAlerts instance #1",
                   "4 TStrakePluginCallbacks::getDialOutAlerts entered. Instance #1",
                   "4 TStrakePluginCallbacks::getDialOutAlerts completed.",
                   "4 TStrakePluginCallbacks::dialcommands completed."}));
}

TEST(DialDriver, BuildsTheListBeforeItSaysThatItIsEntered) {
  Scenario scenario = DialServer(1, 1, 1);
  scenario.Run(kAllDial);
  EXPECT_EQ(scenario.Record().Beginning(
                {"buildDotCommandList", "log 4 1.1", "log 4 TStrakePluginCallbacks::dial", "count ",
                 "log 3 DialoutSettings inst", "log 3 DialinSettings inst"}),
            (Lines{"buildDotCommandList -> true", "log 4 1.1 command passed : got dotcommand list.",
                   "log 4 TStrakePluginCallbacks::dialcommands entered.", "count 4.1.3.1.255 -> 1",
                   "log 3 DialoutSettings instances = 1", "log 3 DialoutSettings instance #1",
                   "count 4.1.4.1.255 -> 1", "log 3 DialinSettings instances = 1",
                   "log 3 DialinSettings instance #1",
                   "log 4 TStrakePluginCallbacks::dialcommands completed."}));
}

TEST(DialDriver, CountsDecideWhatIsRead) {
  for (const int dialouts : {-1, 0, 1, 254}) {
    for (const int dialins : {-1, 0, 1, 2}) {
      SCOPED_TRACE(std::to_string(dialouts) + " and " + std::to_string(dialins));
      // What is not listed counts -1.
      Scenario scenario = DialServer(1, std::max(dialouts, 0), std::max(dialins, 0));
      if (dialouts < 0) {
        scenario.server.sp.components.erase(Id("4.1.3.0.255"));
      }
      if (dialins < 0) {
        scenario.server.sp.components.erase(Id("4.1.4.0.255"));
      }
      scenario.Run(kAllDial);
      Lines failedDialouts;
      if (dialouts < 0) {
        failedDialouts = {"3 Failed to get componentcmdlist for dialoutsettings."};
      }
      Lines failedDialins;
      if (dialins < 0) {
        failedDialins = {"3 Failed to get componentcmdlist for dialinsettings."};
      }
      EXPECT_EQ(DriverLines(scenario),
                Join({kBuilt, Group("DialoutSettings", "getDialoutSettings", dialouts),
                      failedDialouts, Group("DialinSettings", "getDialinSettings", dialins),
                      failedDialins, PortsAndAlerts()}));
      EXPECT_EQ(scenario.Record().Beginning({"Commit"}).size(),
                static_cast<std::size_t>(std::max(dialouts, 0) + std::max(dialins, 0) + 3));
    }
  }
}

TEST(DialDriver, InstancesOfAllCountsAreNumberedToTheLast) {
  Scenario scenario = DialServer(1, 254, 254);
  scenario.Run({kDialout, kDialin});
  Lines numbers;
  for (const std::string& line : scenario.Record().Beginning({"Set "})) {
    const auto place = line.find(" Instance string ");
    if (place != std::string::npos) {
      numbers.push_back(line.substr(place + 17));
    }
  }
  ASSERT_EQ(numbers.size(), 508U);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    EXPECT_EQ(numbers.at(i), std::to_string(i % 254 + 1));
  }
  EXPECT_EQ(scenario.Record().Beginning({"dot 2 4.1.3.254.255", "dot 2 4.1.4.254."}).size(), 4U);
}

TEST(DialDriver, ACountThatWouldNeverEndIsRefusedByTheDriverLibrary) {
  for (const char* const component : {"4.1.3.1.255", "4.1.4.1.255"}) {
    for (const int count : {255, 256, 32767}) {
      Scenario scenario = DialServer(1, 1, 1);
      scenario.Component(component, count);
      EXPECT_THROW(scenario.Run(kAllDial), std::invalid_argument);
    }
  }
}

TEST(DialDriver, WithoutAListStillReadsPortsAndAlerts) {
  Scenario scenario = DialServer(1, 3, 2);
  scenario.server.sp.commandList = false;
  scenario.Run(kAllDial);
  EXPECT_EQ(DriverLines(scenario), Join({{"4 1.1 command failed: can not build dotcommand list.",
                                          "4 TStrakePluginCallbacks::dialcommands entered."},
                                         PortsAndAlerts()}));
  EXPECT_EQ(scenario.Record().Beginning({"count", "dot 2 4.1.3", "dot 2 4.1.4"}), Lines{});
  EXPECT_EQ(scenario.Record().Beginning({"Commit"}).size(), 3U);
}

TEST(DialDriver, AttemptsTwoPortsAndOneAlertReadWhateverTheAnswers) {
  for (const platform::Reply& reply :
       {Failure(), Success(""), Success(Bytes({1})), Failure(SerialPortReply(), 116)}) {
    Scenario scenario = Scenario::Orlo();
    for (const char* const identifier : {"4.1.2.1.255", "4.1.2.2.255", "4.2.1.1"}) {
      scenario.Answer(identifier, {reply});
    }
    scenario.Run(kAllDial);
    Lines sent;
    for (const std::string& line : scenario.Record().Beginning({"dot 2 4."})) {
      sent.push_back(line.substr(6, line.find(" sp") - 6));
    }
    EXPECT_EQ(sent, (Lines{"4.1.2.1.255", "4.1.2.2.255", "4.2.1.1"}));
  }
}

TEST(DialDriver, AReaderThatFailsDoesNotStopTheNextOnes) {
  Scenario scenario = DialServer(1, 3, 1);
  for (const char* const identifier : {"4.1.3.2.255", "4.1.4.1.255", "4.1.2.1.255"}) {
    scenario.Answer(identifier, {Failure()});
  }
  scenario.Run(kAllDial);
  EXPECT_EQ(scenario.Record().Beginning({"log 3 No data", "CreateInstance"}),
            (Lines{"CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint1",
                   "log 3 No data retrieved for Dial out settings.",
                   "CreateInstance 2 VELKSG_ServProc_DialProtocolEndpoint1",
                   "CreateInstance 3 VELKSG_ServProc_DialProtocolEndpoint2",
                   "log 3 No data retrieved for Dial in settings.",
                   "log 3 No data retrieved for Serial Port info.",
                   "CreateInstance 4 VELKSG_ServProc_DialProtocolEndpoint3",
                   "CreateInstance 5 VELKSG_ServProc_DialProtocolEndpoint4"}));
  EXPECT_EQ(Property(scenario, 2, "Instance"), "string 3");
  EXPECT_EQ(Property(scenario, 4, "Instance"), "string 2");
}

}  // namespace
}  // namespace strake::tests
