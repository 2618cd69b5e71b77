// The collection driver: MTM and system name, requested classes, the Orlo path.
#include "platform/hostcore/HostControl.h"
#include "platform/session/HostSession.h"
#include "plugin/frame/ModuleEntry.h"
#include "tests/support/Scenario.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kComputer = "VELKSG_SP_ComputerSystem";
const std::string kSensor = "VELKSG_SP_NumericSensor";
const std::string kEndpoint = "VELKSG_ServProc_IPProtocolEndpoint";
const std::string kDial = "VELKSG_ServProc_DialProtocolEndpoint";

// The one line that tells all flags; `set` holds those that are 1.
std::string FlagsLine(const Classes& set) {
  const Classes all = {"SP_ComputerSystem",
                       "ServProc_IPProtocolEndpoint2",
                       "ServProc_IPProtocolEndpoint",
                       "ServProc_DialProtocolEndpoint3",
                       "ServProc_DialProtocolEndpoint1",
                       "ServProc_DialProtocolEndpoint2",
                       "ServProc_DialProtocolEndpoint4",
                       "SP_NumericSensor"};
  std::string line = "log 3 ";
  for (const std::string& name : all) {
    const bool isSet = std::find(set.begin(), set.end(), "VELKSG_" + name) != set.end();
    line += (name == all.front() ? "f" : "\nf") + name + " = " + (isSet ? "1" : "0");
  }
  return line;
}

const std::string kMachinesLine =
    "log 3 Max_Num_Machines = 9 sizeof(MachineTypeArray) = 72, sizeof(char*) = 8";

Lines Joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

const Lines kOpening = {
    "log 3 Strake plugin begin execution.",
    "GetMachineTypeFromID -> 9999-AC1",
    "log 3 Obtained MTM.",
    "log 3 9999-AC1",
    "GetSystemName -> SRV1",
    "log 3 Obtained SystemName.",
    "log 3 SRV1",
};
const Lines kOrloStart = {
    "log 4 TSPEnviron() constructor entered.",
    kMachinesLine,
    "isDotcommand -> true",
    "log 3 Orlo is present on board. Begin collecting TCPIP and dial settings data.",
};
const Lines kClosing = {
    "log 3 Strake plugin execution complete.",
    "log 4 TSPEnviron destructor entered.",
    "query_end",
};

TEST(Query, OfNoClassesStillTestsEverySpAndBuildsNothing) {
  Scenario scenario = Scenario::Orlo(2);
  scenario.Answer("1.1", {Failure()}, 1);
  EXPECT_EQ(
      scenario.Run(Classes{}).Record().All(),
      Joined({{"query "},
              kOpening,
              {FlagsLine({})},
              kOrloStart,
              {"checkSPComm -> true", "discoverSPs -> 2",
               "log 3 DiscoverSPs() found SPinstance#: 2", "dot 2 1.1 sp 0 size 4096 -> true 1 01",
               "log 3 Checking dotCmd for spInstance#: 0. cmd_passed = 1",
               "dot 2 1.1 sp 1 size 4096 -> false 0 ",
               "log 3 Checking dotCmd for spInstance#: 1. cmd_passed = 0",
               "log 3 Orlo collection complete."},
              kClosing}));
}

TEST(Query, TurnsEachClassIntoItsFlagWithOneNamePerComparison) {
  // The class and how often its name is asked for: once for the line, then
  // once for each comparison up to the first match.
  const std::vector<std::pair<std::string, std::size_t>> cases = {
      {kComputer, 2},
      {kEndpoint + "2", 3},
      {kEndpoint, 4},
      {kDial + "3", 5},
      {kDial + "1", 6},
      {kDial + "2", 7},
      {kDial + "4", 8},
      {kSensor, 9},
      {"CIM_Unknown", 9},
      {"velksg_sp_computersystem", 9},
      {"", 9},
  };
  for (const auto& [name, asked] : cases) {
    Scenario scenario = Scenario::Orlo(0);
    const Lines lines = scenario.Run(Classes{name}).Record().All();
    Lines expected = {"query " + name};
    expected.insert(expected.end(), kOpening.begin(), kOpening.end());
    expected.push_back("GetName -> " + name);
    expected.push_back("log 3 Current class = " + name);
    expected.insert(expected.end(), asked - 1, "GetName -> " + name);
    expected.push_back(FlagsLine({name}));
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + static_cast<long>(expected.size())), expected);
  }
}

TEST(Query, KeepsListOrderAndForgetsTheFlagsOfTheQueryBefore) {
  Scenario scenario = Scenario::Orlo(0);
  scenario.RunAll({{kSensor, "X", kComputer}, {kEndpoint}, {}});
  EXPECT_EQ(scenario.Record().Beginning({"log 3 Current class", "log 3 fSP"}),
            (Lines{"log 3 Current class = " + kSensor, "log 3 Current class = X",
                   "log 3 Current class = " + kComputer, FlagsLine({kSensor, kComputer}),
                   "log 3 Current class = " + kEndpoint, FlagsLine({kEndpoint}), FlagsLine({})}));
}

TEST(Query, GoesOnWithFallbacksWhenTheHostThrows) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.host.machineTypeModel = {"no MTM here", true};
  scenario.server.host.systemName = {"x", true};
  scenario.Run(Classes{kComputer});
  const Lines lines = scenario.Record().All();
  EXPECT_EQ(Lines(lines.begin(), lines.begin() + 6),
            (Lines{"query " + kComputer, "log 3 Strake plugin begin execution.",
                   "GetMachineTypeFromID throws no MTM here",
                   "log 2 Unable to obtain MTM due to caught exception no MTM here",
                   "GetSystemName throws x",
                   "log 2 Unable to obtain SystemName due to caught exception x"}));
  EXPECT_EQ(scenario.Record().Properties(1)[2], "Name string Unknown SystemName:Node1");
}

// A logger that refuses one line.
class Refuses : public Recorder {
 public:
  explicit Refuses(std::string line) : fLine(std::move(line)) {}

  void OnLog(int level, const std::string& message) override {
    Recorder::OnLog(level, message);
    if (message == fLine) {
      throw std::runtime_error("log is full");
    }
  }

 private:
  std::string fLine;
};

TEST(Query, GuardsTheLinesOnTheMtmAndTheSystemNameToo) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"Obtained MTM.", "2 Unable to obtain MTM due to caught exception log is full"},
      {"9999-AC1", "2 Unable to obtain MTM due to caught exception log is full"},
      {"Obtained SystemName.", "2 Unable to obtain SystemName due to caught exception log is full"},
      {"SRV1", "2 Unable to obtain SystemName due to caught exception log is full"},
  };
  for (const auto& [line, told] : cases) {
    Refuses record(line);
    platform::HostSession session(Scenario::Orlo(0).server, &record);
    session.Attach(&StrakeModuleEntry);
    session.Query({});
    const Lines logs = record.Logs();
    const auto refused = std::find(logs.begin(), logs.end(), "3 " + line);
    ASSERT_LT(refused + 1, logs.end());
    EXPECT_EQ(refused[1], told);
    EXPECT_EQ(logs.back(), "4 TSPEnviron destructor entered.");
  }
}

TEST(Query, LetsAThrowingLoggerAtItsEndReachTheHost) {
  for (const char* const line :
       {"Strake plugin execution complete.", "TSPEnviron destructor entered."}) {
    Refuses record(line);
    platform::HostSession session(Scenario::Orlo(0).server, &record);
    session.Attach(&StrakeModuleEntry);
    const long held = session.Namespace().use_count();
    EXPECT_THROW(session.Query({}), std::runtime_error) << line;
    EXPECT_EQ(record.Logs().back(), "4 TSPEnviron destructor entered.");
    EXPECT_EQ(session.Namespace().use_count(), held);
  }
}

TEST(Query, EndsAtOnceWhenTheOrloCardDoesNotCommunicate) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.sp.communicates = false;
  EXPECT_EQ(scenario.Run(Classes{}).Record().All(),
            Joined({{"query "},
                    kOpening,
                    {FlagsLine({})},
                    kOrloStart,
                    {"checkSPComm -> false", "log 0 Could not communicate with Orlo card.",
                     "log 4 TSPEnviron destructor entered.", "query_end"}}));
}

TEST(Query, UsesTheLowEightBitsOfTheSpCount) {
  const std::vector<std::pair<int, int>> cases = {
      {0, 0}, {1, 1}, {255, 255}, {256, 0}, {300, 44}, {-1, 255}, {-256, 0},
  };
  for (const auto& [reported, used] : cases) {
    Scenario scenario = Scenario::Orlo(1);
    scenario.server.sp.count = reported;
    const Lines lines = scenario.Run(Classes{}).Record().All();
    const Lines found = scenario.Record().Beginning({"discoverSPs", "log 3 DiscoverSPs"});
    EXPECT_EQ(found, (Lines{"discoverSPs -> " + std::to_string(reported),
                            "log 3 DiscoverSPs() found SPinstance#: " + std::to_string(used)}));
    EXPECT_EQ(scenario.Record().Beginning({"dot 2 1.1"}).size(), static_cast<std::size_t>(used));
    EXPECT_EQ(lines[lines.size() - 4], "log 3 Orlo collection complete.");
  }
}

TEST(Query, DecidesOnAnSpByTheResultOfItsTestCommandAlone) {
  Scenario scenario = Scenario::Orlo(3);
  scenario.Answer("1.1", {Success("")}, 0)
      .Answer("1.1", {Reported(Bytes({9}), -5)}, 1)
      .Answer("1.1", {Failure(Bytes({1, 2, 3}), 3)}, 2);
  scenario.Run(Classes{kComputer});
  EXPECT_EQ(scenario.Record().Beginning({"log 3 Checking", "Commit"}),
            (Lines{"log 3 Checking dotCmd for spInstance#: 0. cmd_passed = 1", "Commit 1",
                   "log 3 Checking dotCmd for spInstance#: 1. cmd_passed = 1", "Commit 2",
                   "log 3 Checking dotCmd for spInstance#: 2. cmd_passed = 0"}));
}

TEST(Query, RunsOneKindOfWorkAnSpInItsPrecedence) {
  const std::string network = "log 4 TStrakePluginCallbacks::tcpipcommands entered.";
  const std::string dial = "log 4 TStrakePluginCallbacks::dialcommands entered.";
  const std::string sensors = "log 3 Begin collecting Orlo Environmental data.";
  const std::string computer = "log 4 CreateVELKSGComputerSystem() entered.";
  const std::vector<std::pair<Classes, std::string>> cases = {
      {{kComputer, kSensor, kDial + "1", kEndpoint + "2"}, network},
      {{kEndpoint, kComputer}, network},
      {{kComputer, kSensor, kDial + "4"}, dial},
      {{kDial + "3"}, dial},
      {{kDial + "1"}, dial},
      {{kDial + "2"}, dial},
      {{kComputer, kSensor}, sensors},
      {{kComputer}, computer},
  };
  for (const auto& [classes, work] : cases) {
    Scenario scenario = Scenario::Orlo(2);
    scenario.Run(classes);
    EXPECT_EQ(scenario.Record().Beginning({network, dial, sensors, computer}), (Lines{work, work}));
  }
}

TEST(Query, ExportsTheSensorsAfterTheLastSpWheneverTheyWereRequested) {
  Scenario scenario = Scenario::Orlo(1);
  scenario.Run(Classes{kSensor, kEndpoint});
  EXPECT_EQ(scenario.Record().Beginning({"log 4 Export", "log 3 Orlo collection"}),
            (Lines{"log 4 ExportOrloVoltages() entered.", "log 4 ExportOrloVoltages() completed.",
                   "log 4 ExportOrloTemps() entered.", "log 4 ExportOrloTemps() completed.",
                   "log 4 ExportOrloFans() entered.", "log 4 ExportOrloFans() completed.",
                   "log 3 Orlo collection complete."}));
}

TEST(Query, TellsOfNeitherKindOfSp) {
  Scenario scenario = Scenario::Orlo(0);
  scenario.server.sp.kind = platform::SpKind::None;
  EXPECT_EQ(scenario.Run(Classes{}).Record().All(),
            Joined({{"query "},
                    kOpening,
                    {FlagsLine({}), "log 4 TSPEnviron() constructor entered.", kMachinesLine,
                     "isDotcommand -> false", "isKestle -> false",
                     "log 3 No Orlo on board. No Tavit on board."},
                    kClosing}));
}

TEST(Query, OfAnEmptyClassHandleReachesTheHostsAssertion) {
  const Scenario scenario = Scenario::Orlo();
  platform::HostSession session(scenario.server);
  session.Attach(&StrakeModuleEntry);
  auto* const query = dynamic_cast<NVELKZEV20::IPluginBasicQueryCallbacks*>(&session.Plugin());
  ASSERT_NE(query, nullptr);
  const long held = session.Namespace().use_count();
  EXPECT_THROW(query->Query(session.Namespace(), {boost::shared_ptr<NVELKZEV20::ICIMClass>()}),
               platform::AssertionError);
  EXPECT_EQ(session.Namespace().use_count(), held);
}

TEST(Query, ReleasesTheNamespaceOnReturn) {
  const Scenario scenario = Scenario::Orlo();
  platform::HostSession session(scenario.server);
  session.Attach(&StrakeModuleEntry);
  const long held = session.Namespace().use_count();
  session.Query({kComputer});
  session.Query({kSensor, kEndpoint});
  EXPECT_EQ(session.Namespace().use_count(), held);
}

}  // namespace
}  // namespace strake::tests
