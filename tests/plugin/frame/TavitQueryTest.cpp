// The collection driver on a Tavit processor.
#include "plugin/frame/TavitMachines.h"
#include "tests/support/Scenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Classes kSensors = {"VELKSG_SP_NumericSensor"};

// What the driver says and asks, from its choice of path on.
Lines Decisions(const Scenario& scenario) {
  Lines lines = scenario.Record().Beginning(
      {"isDotcommand", "isKestle", "isQmvStop", "isDornlibrary", "GetLocalTime", "log 0", "log 1",
       "log 2", "log 3", "log 4 Tavit", "log 4 TSPEnviron destructor"});
  while (!lines.empty() && lines.front() != "isDotcommand -> false") {
    lines.erase(lines.begin());
  }
  return lines;
}

Lines MatchLines(int tried) {
  Lines lines;
  for (int type = 5120; type < 5120 + tried; ++type) {
    lines.push_back("log 3 CurrentMachineTypeArray = " + std::to_string(type));
  }
  return lines;
}

TEST(TavitQuery, MatchesTheMachineTypeAndDerivesItsFamily) {
  const std::vector<std::tuple<std::string, int, int>> cases = {
      {"5120", 0, 0},     {"5121-AB", 1, 0}, {"5122", 2, 0},    {"5123", 3, 1}, {"5124", 4, 1},
      {"5125-77X", 5, 2}, {"5126", 6, 3},    {"5127XYZ", 7, 3}, {"5128", 8, 3},
  };
  for (const auto& [mtm, index, family] : cases) {
    Scenario scenario = Scenario::Tavit(mtm);
    scenario.Run(kSensors);
    Lines expected = {"isDotcommand -> false", "isKestle -> true",
                      "log 3 Tavit is present on board.", "isQmvStop -> true",
                      "log 3 Collecting Tavit data. (No Dornlibrary on board)."};
    const Lines tried = MatchLines(index + 1);
    expected.insert(expected.end(), tried.begin(), tried.end());
    expected.insert(expected.end(), {"log 2 Found matching Tavit machine type",
                                     "log 4 Tavit machine type index=" + std::to_string(index),
                                     "log 3 Tavit_Type = " + std::to_string(family)});
    Lines decisions = Decisions(scenario);
    ASSERT_GE(decisions.size(), expected.size());
    EXPECT_EQ(decisions.back(), "log 4 TSPEnviron destructor entered.");
    EXPECT_EQ(decisions[decisions.size() - 2], "log 3 Strake plugin execution complete.");
    EXPECT_EQ(decisions[decisions.size() - 3], "log 3 Complete collection of Tavit data.");
    decisions.resize(expected.size());
    EXPECT_EQ(decisions, expected);
  }
}

TEST(TavitQuery, EndsAtOnceWhenNoMachineTypeMatches) {
  for (const std::string mtm : {"512", "5129", "", "51", "4120", "Unknown MTM", "151205"}) {
    Scenario scenario = Scenario::Tavit(mtm);
    scenario.Run(kSensors);
    Lines expected = {"isDotcommand -> false", "isKestle -> true",
                      "log 3 Tavit is present on board.", "isQmvStop -> true",
                      "log 3 Collecting Tavit data. (No Dornlibrary on board)."};
    const Lines tried = MatchLines(9);
    expected.insert(expected.end(), tried.begin(), tried.end());
    expected.insert(expected.end(), {"log 2 No matching Tavit machine was found.",
                                     "log 4 TSPEnviron destructor entered."});
    EXPECT_EQ(Decisions(scenario), expected) << mtm;
    EXPECT_EQ(scenario.Record().Beginning({"kestle"}), Lines{});
  }
}

TEST(TavitQuery, AHostWithoutAnMtmMatchesNoMachine) {
  Scenario scenario = Scenario::Tavit("");
  scenario.server.host.machineTypeModel = {"gone", true};
  scenario.Run(kSensors);
  EXPECT_EQ(scenario.Record().Beginning({"log 2"}),
            (Lines{"log 2 Unable to obtain MTM due to caught exception gone",
                   "log 2 No matching Tavit machine was found."}));
}

TEST(TavitQuery, ReadsAndExportsInOrder) {
  Scenario scenario = Scenario::Tavit("5125");
  scenario.Run(kSensors);
  EXPECT_EQ(
      scenario.Record().Beginning({"log 4 GetKestle", "log 4 ExportKestle", "kestle"}),
      (Lines{"log 4 GetKestleVoltage() entered.",
             "kestle 2 166 166 90 data 0 ack false read true -> false 0 ",
             "log 4 GetKestleVoltage() completed.", "log 4 GetKestleFan() entered.",
             "kestle 2 162 162 94 data 0 ack false read true -> false 0 ",
             "log 4 GetKestleFan() completed.", "log 4 GetKestleTemperature() entered.",
             "kestle 2 164 164 92 data 0 ack false read true -> false 0 ",
             "log 4 GetKestleTemperature() completed.", "log 4 ExportKestleVoltages() entered.",
             "log 4 ExportKestleVoltages() completed.", "log 4 ExportKestleFans() entered.",
             "log 4 ExportKestleFans() completed.", "log 4 ExportKestleTemps() entered.",
             "log 4 ExportKestleTemps() completed."}));
}

TEST(TavitQuery, LeavesTheProcessorToTheManagementServer) {
  Scenario scenario = Scenario::Tavit("5125");
  scenario.server.sp.managementServerStopped = false;
  scenario.server.sp.dornLibrary = true;
  scenario.Run(kSensors);
  Lines lines = scenario.Record().All();
  while (lines.front() != "isDotcommand -> false") {
    lines.erase(lines.begin());
  }
  EXPECT_EQ(lines,
            (Lines{"isDotcommand -> false", "isKestle -> true", "log 3 Tavit is present on board.",
                   "isQmvStop -> false", "isDornlibrary -> true",
                   "log 3 Dorn Library is present on board.", "GetLocalTime",
                   "log 4 Tavit environmental data is not being collected due to the presence of "
                   "VELK Ostrel.\nTo stop Ostrel, use command net stop qmvipc.  Then run ZEV.  "
                   "Afterwards restart Ostrel with command net start qmvipc.",
                   "log 1 Dornlibrary is present on the system. Cannot collect Tavit data.",
                   "log 3 Strake plugin execution complete.",
                   "log 4 TSPEnviron destructor entered.", "query_end"}));
}

TEST(TavitQuery, AsksForTheDornLibraryOnlyWhileTheManagementServerRuns) {
  // stopped, Dorn library -> what is asked
  const std::vector<std::tuple<bool, bool, Lines>> cases = {
      {true, true, {"isQmvStop -> true"}},
      {true, false, {"isQmvStop -> true"}},
      {false, false, {"isQmvStop -> false", "isDornlibrary -> false"}},
  };
  for (const auto& [stopped, dorn, asked] : cases) {
    Scenario scenario = Scenario::Tavit("5125");
    scenario.server.sp.managementServerStopped = stopped;
    scenario.server.sp.dornLibrary = dorn;
    scenario.Run(kSensors);
    EXPECT_EQ(scenario.Record().Beginning({"isQmvStop", "isDornlibrary"}), asked);
    EXPECT_EQ(scenario.Record().Beginning({"kestle"}).size(), 3U);
  }
}

TEST(TavitQuery, WithoutTheSensorClassSaysThatNothingIsOnBoard) {
  Scenario scenario = Scenario::Tavit("5125");
  scenario.Run(Classes{"VELKSG_SP_ComputerSystem"});
  EXPECT_EQ(Decisions(scenario), (Lines{"isDotcommand -> false", "isKestle -> true",
                                        "log 3 No Orlo on board. No Tavit on board.",
                                        "log 3 Strake plugin execution complete.",
                                        "log 4 TSPEnviron destructor entered."}));
}

TEST(TavitQuery, AServerWithBothKindsTakesTheOrloPath) {
  Scenario scenario = Scenario::Orlo(0);
  scenario.server.sp.kind = platform::SpKind::Both;
  scenario.Run(kSensors);
  EXPECT_EQ(scenario.Record().Beginning({"is"}), (Lines{"isDotcommand -> true"}));
}

TEST(TavitMachines, EveryIndexOutsideTheTableHasNoFamily) {
  constexpr unsigned int kExpected[] = {0, 0, 0, 1, 1, 2, 3, 3, 3, 4, 4, 4};
  for (std::size_t index = 0; index < std::size(kExpected); ++index) {
    EXPECT_EQ(KestleTypeOf(index), kExpected[index]) << index;
  }
  EXPECT_EQ(KestleTypeOf(static_cast<std::size_t>(-1)), 4U);
}

}  // namespace
}  // namespace strake::tests
