// The driver of the network classes: which instances it makes for an SP, and
// what identifies them.
#include "platform/hostcore/HostControl.h"
#include "platform/session/HostSession.h"
#include "platform/spdriver/DriverControl.h"
#include "plugin/frame/ModuleEntry.h"
#include "plugin/frame/TStrakePluginCallbacks.h"
#include "tests/plugin/config/NetworkScenario.h"
#include "tests/support/FaultyObserver.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;

Lines Skeleton(const Scenario& scenario) {
  return scenario.Record().Beginning({"GetClass", "CreateInstance", "Commit", "build", "count",
                                      "log 4 TStrakePluginCallbacks::tcpip",
                                      "log 4 TStrakePluginCallbacks::NetworkInterface",
                                      "log 4 TStrakePluginCallbacks::IndividualDHCPValues"});
}

Lines InterfaceCalls(const std::string& first, const std::string& second) {
  return {
      "GetClass VELKSG_ServProc_IPProtocolEndpoint",
      "CreateInstance " + first + " VELKSG_ServProc_IPProtocolEndpoint",
      "log 4 TStrakePluginCallbacks::NetworkInterface entered.",
      "log 4 TStrakePluginCallbacks::NetworkInterface completed.",
      "log 4 TStrakePluginCallbacks::IndividualDHCPValues entered.",
      "log 4 TStrakePluginCallbacks::IndividualDHCPValues completed.",
      "Commit " + first,
      "GetClass VELKSG_ServProc_IPProtocolEndpoint",
      "CreateInstance " + second + " VELKSG_ServProc_IPProtocolEndpoint",
      "buildDotCommandList -> true",
      "count 4.9.1.2.255 -> 2",
      "log 4 TStrakePluginCallbacks::NetworkInterface entered.",
      "log 4 TStrakePluginCallbacks::NetworkInterface completed.",
      "log 4 TStrakePluginCallbacks::IndividualDHCPValues entered.",
      "log 4 TStrakePluginCallbacks::IndividualDHCPValues completed.",
      "Commit " + second,
  };
}

Lines SummaryCalls(const std::string& number) {
  return {"GetClass VELKSG_ServProc_IPProtocolEndpoint2",
          "CreateInstance " + number + " VELKSG_ServProc_IPProtocolEndpoint2", "Commit " + number};
}

const Lines& Entered() {
  static const Lines kLines = {"log 4 TStrakePluginCallbacks::tcpipcommands entered."};
  return kLines;
}

const Lines& Completed() {
  static const Lines kLines = {"log 4 TStrakePluginCallbacks::tcpipcommands completed."};
  return kLines;
}

TEST(NetworkDriver, MakesTheSummaryFirstAndThenTheInterfacesOfEachSP) {
  Scenario scenario = NetworkServer(2);
  scenario.Run({kInterfaceClass, kSummaryClass});
  EXPECT_EQ(Skeleton(scenario),
            Joined({Entered(), SummaryCalls("1"), InterfaceCalls("2", "3"), Completed(), Entered(),
                    SummaryCalls("4"), InterfaceCalls("5", "6"), Completed()}));
}

TEST(NetworkDriver, MakesOnlyWhatWasRequested) {
  Scenario scenario = NetworkServer();
  scenario.Run({kSummaryClass});
  EXPECT_EQ(Skeleton(scenario), Joined({Entered(), SummaryCalls("1"), Completed()}));
  EXPECT_EQ(Commands(scenario), (Lines{"0 4.9.3.1.2", "0 4.9.3.1.1", "0 4.9.3.1.3", "0 4.9.3.1.5",
                                       "0 4.9.3.1.6", "0 4.9.3.2.255", "0 4.9.3.1.4.255"}));
  scenario.Run({kInterfaceClass});
  EXPECT_EQ(Skeleton(scenario), Joined({Entered(), InterfaceCalls("1", "2"), Completed()}));
  EXPECT_EQ(Commands(scenario).size(), 21U);
}

TEST(NetworkDriver, ReportsSuccessWhateverFails) {
  Scenario silent = Scenario::Orlo(2);
  silent.server.sp.commandList = false;
  for (Scenario* const scenario : {&silent}) {
    scenario->Run({kInterfaceClass, kSummaryClass});
    EXPECT_EQ(scenario->Record().Beginning({"log 3 Did not obtain"}), Lines{});
    EXPECT_EQ(scenario->Record().Beginning({"Commit"}),
              (Lines{"Commit 1", "Commit 2", "Commit 4", "Commit 5"}));
  }
}

TEST(NetworkDriver, CountsNodesFromOneAndNamesThemByTheMachine) {
  Scenario scenario = Scenario::Orlo(3);
  scenario.Component(kInterfaceList, 2);
  scenario.server.host.machineTypeModel = {"7979-B2C", false};
  scenario.server.host.systemName = {"alpha", false};
  scenario.Run({kInterfaceClass, kSummaryClass});
  for (unsigned long sp = 0; sp < 3; ++sp) {
    const std::string node = std::to_string(sp + 1);
    const Lines summary = scenario.Record().Properties(3 * sp + 1);
    const Lines first = scenario.Record().Properties(3 * sp + 2);
    const Lines second = scenario.Record().Properties(3 * sp + 3);
    EXPECT_EQ(
        Lines(summary.begin() + 1, summary.begin() + 5),
        (Lines{"SourceNode uint8 " + node, "Name string 7979-B2C-Node" + node,
               "SystemCreationClassName string CIM_ComputerSystem", "SystemName string alpha"}));
    EXPECT_EQ(Lines(first.begin() + 1, first.begin() + 5),
              (Lines{"Name string 7979-B2C-Node" + node + "-IPInstance#1",
                     "SystemCreationClassName string CIM_ComputerSystem", "SystemName string alpha",
                     "SourceNode uint8 " + node}));
    EXPECT_EQ(second.at(1), "Name string 7979-B2C-Node" + node + "-IPInstance#2");
  }
}

TEST(NetworkDriver, PassesFallbackNamesOn) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.host.machineTypeModel = {"none", true};
  scenario.server.host.systemName = {"none", true};
  scenario.Run({kInterfaceClass, kSummaryClass});
  EXPECT_EQ(scenario.Record().Properties(1).at(2), "Name string Unknown MTM-Node1");
  EXPECT_EQ(scenario.Record().Properties(1).at(4), "SystemName string Unknown SystemName");
  EXPECT_EQ(scenario.Record().Properties(2).at(1), "Name string Unknown MTM-Node1-IPInstance#1");
}

TEST(NetworkDriver, NumbersTheSPsInEightBits) {
  struct Case {
    unsigned char sp;
    const char* node;
  };
  for (const Case& c : {Case{254, "255"}, Case{255, "0"}}) {
    Recorder record;
    platform::HostSession session(Scenario::Orlo().server, &record);
    session.Attach(&StrakeModuleEntry);
    session.Query({kSummaryClass});  // the request stays with the object
    record.Forget();
    auto& plugin = dynamic_cast<TStrakePluginCallbacks&>(session.Plugin());
    EXPECT_EQ(
        plugin
            .tcpipcommands(session.Namespace(), NVELKZEV20::SPLibrary::GetSplibraryInstance(0),
                           "MTM", "SRV1", c.sp)
            .Code(),
        0);
    const Lines properties = record.Properties(2);
    ASSERT_GT(properties.size(), 2U);
    EXPECT_EQ(properties[1], std::string("SourceNode uint8 ") + c.node);
    EXPECT_EQ(properties[2], std::string("Name string MTM-Node") + c.node);
    EXPECT_EQ(record.Logs().at(2),
              "4 Sent command: 4.9.3.1.2. Status: ADDR. ReturnDataLen:0 for "
              "spInstance#: " +
                  std::to_string(c.sp) + ".");
  }
}

TEST(NetworkDriver, EveryCommandIsDestroyedAfterItsSend) {
  Scenario scenario = NetworkServer();
  const long before = platform::LiveDotCommands();
  scenario.Run({kInterfaceClass, kSummaryClass});
  // The presence test alone keeps its command.
  EXPECT_EQ(platform::LiveDotCommands(), before + 1);
}

TEST(NetworkDriver, HostErrorsAreNotCaughtHere) {
  struct Case {
    BoundaryCall call;
    int place;
    Fault fault;
    const char* text;
    Lines commits;
  };
  const Case cases[] = {
      {BoundaryCall::GetClass, 1, Fault::EmptyHandle, "px != 0", {}},
      {BoundaryCall::GetClass, 2, Fault::EmptyHandle, "px != 0", {"Commit 1"}},
      {BoundaryCall::GetClass, 3, Fault::EmptyHandle, "px != 0", {"Commit 1", "Commit 2"}},
      {BoundaryCall::CreateInstance, 1, Fault::EmptyHandle, "px != 0", {}},
      {BoundaryCall::CreateInstance, 3, Fault::EmptyHandle, "px != 0", {"Commit 1", "Commit 2"}},
      {BoundaryCall::SetProperty, 6, Fault::StandardException, "injected fault", {}},
      {BoundaryCall::GetSystemCreationClassName,
       2,
       Fault::StandardException,
       "injected fault",
       {"Commit 1"}},
  };
  for (const Case& c : cases) {
    FaultyObserver<Recorder> host;
    host.Plan({.fault = c.fault, .atCall = c.place, .only = c.call});
    platform::HostSession session(NetworkServer().server, &host);
    session.Attach(&StrakeModuleEntry);
    try {
      session.Query({kInterfaceClass, kSummaryClass});
      ADD_FAILURE() << "no exception";
    } catch (const std::exception& error) {
      EXPECT_NE(std::string(error.what()).find(c.text), std::string::npos) << error.what();
    }
    EXPECT_EQ(host.Beginning({"Commit"}), c.commits);
    EXPECT_EQ(host.Logs().back().find("completed: "), std::string::npos);
    EXPECT_EQ(host.Beginning({"log 4 TStrakePluginCallbacks::tcpipcommands completed."}), Lines{});
  }
}

}  // namespace
}  // namespace strake::tests
