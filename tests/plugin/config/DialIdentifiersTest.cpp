// The shared identifiers of the dial commands: who writes their fourth byte,
// and how it shows in the look-ups that count instances.
#include "plugin/config/SharedIdentifiers.h"
#include "tests/plugin/config/DialScenario.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Classes kAllDial = {kSerialPort, kDialout, kDialin, kAlerts};

// Fourth bytes: port, dial-out, dial-in, authority, last login, alerts.
using Numbers = std::array<int, 6>;
constexpr Numbers kFresh = {1, 1, 1, 1, 1, 255};

Numbers LeftBehind() {
  const SharedIdentifiers& identifiers = Identifiers();
  Numbers numbers{};
  std::size_t place = 0;
  for (const DotIdentifier* identifier :
       {&identifiers.serialPort, &identifiers.dialout, &identifiers.dialin,
        &identifiers.dialinAuthority, &identifiers.dialinLastLogin, &identifiers.dialOutAlerts}) {
    numbers.at(place) = identifier->bytes[3];
    ++place;
  }
  return numbers;
}

Lines Counts(const Scenario& scenario) { return scenario.Record().Beginning({"count"}); }

TEST(DialIdentifiers, KeepTheLastNumberThatWasSent) {
  const struct {
    const char* title;
    Classes classes;
    Numbers left;
  } cases[] = {
      {"none", {}, kFresh},
      {"ports", {kSerialPort}, {2, 1, 1, 1, 1, 255}},
      {"dial-outs", {kDialout}, {1, 3, 1, 1, 1, 255}},
      {"dial-ins", {kDialin}, {1, 1, 2, 2, 2, 255}},
      {"alerts", {kAlerts}, {1, 1, 1, 1, 1, 1}},
      {"all four", kAllDial, {2, 3, 2, 2, 2, 1}},
      {"no dial class", {"VELKSG_SP_NumericSensor"}, kFresh},
  };
  for (const auto& [title, classes, left] : cases) {
    Scenario scenario = DialServer(1, 3, 2);
    scenario.Run(classes);
    EXPECT_EQ(LeftBehind(), left) << title;
  }
}

TEST(DialIdentifiers, AreWrittenForSendsThatFailToo) {
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.3.1.255", 5).Component("4.1.4.1.255", 7).Run(kAllDial);
  EXPECT_EQ(LeftBehind(), (Numbers{2, 5, 7, 7, 7, 1}));
}

TEST(DialIdentifiers, ThatAreCountedStayWhenThereIsNothingToRead) {
  Scenario none = DialServer(1, 0, 0);
  none.Run(kAllDial);
  EXPECT_EQ(LeftBehind(), (Numbers{2, 1, 1, 1, 1, 1}));

  Scenario noList = DialServer(1, 3, 2);
  noList.server.sp.commandList = false;
  noList.Run(kAllDial);
  EXPECT_EQ(LeftBehind(), (Numbers{2, 1, 1, 1, 1, 1}));
}

TEST(DialIdentifiers, AreCountedAsTheLastReadLeftThemOverSpsAndQueries) {
  Scenario scenario = DialServer(2, 3, 2);
  scenario.RunAll({kAllDial, kAllDial});
  EXPECT_EQ(Counts(scenario),
            (Lines{"count 4.1.3.1.255 -> 3", "count 4.1.4.1.255 -> 2", "count 4.1.3.3.255 -> 3",
                   "count 4.1.4.2.255 -> 2", "count 4.1.3.3.255 -> 3", "count 4.1.4.2.255 -> 2",
                   "count 4.1.3.3.255 -> 3", "count 4.1.4.2.255 -> 2"}));
}

TEST(DialIdentifiers, OfAClassThatIsNotAskedForAreCountedAsTheyWere) {
  Scenario scenario = DialServer(2, 3, 2);
  scenario.RunAll({{kDialin}, {kSerialPort}, {kDialout}, {kAlerts}});
  EXPECT_EQ(Counts(scenario), (Lines{// Logins only: the dial-outs stay at 1.
                                     "count 4.1.3.1.255 -> 3", "count 4.1.4.1.255 -> 2",
                                     "count 4.1.3.1.255 -> 3", "count 4.1.4.2.255 -> 2",
                                     // Ports only: both stay.
                                     "count 4.1.3.1.255 -> 3", "count 4.1.4.2.255 -> 2",
                                     "count 4.1.3.1.255 -> 3", "count 4.1.4.2.255 -> 2",
                                     // Dial-outs.
                                     "count 4.1.3.1.255 -> 3", "count 4.1.4.2.255 -> 2",
                                     "count 4.1.3.3.255 -> 3", "count 4.1.4.2.255 -> 2",
                                     // Alerts: both stay.
                                     "count 4.1.3.3.255 -> 3", "count 4.1.4.2.255 -> 2",
                                     "count 4.1.3.3.255 -> 3", "count 4.1.4.2.255 -> 2"}));
}

TEST(DialIdentifiers, ReachTheirLastNumberAndBeginAtOneAgain) {
  Scenario scenario = DialServer(1, 254, 254);
  scenario.RunAll({kAllDial, kAllDial});
  EXPECT_EQ(Counts(scenario), (Lines{"count 4.1.3.1.255 -> 254", "count 4.1.4.1.255 -> 254",
                                     "count 4.1.3.254.255 -> 254", "count 4.1.4.254.255 -> 254"}));
  const Lines sent = scenario.Record().Beginning({"dot 2 4.1.3.1.255", "dot 2 4.1.4.1.255"});
  EXPECT_EQ(sent.size(), 4U);
}

}  // namespace
}  // namespace strake::tests
