// The authority levels of a dial-in login.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const char* const kLevels[] = {
    "DenyAlways",
    "Supervisor",
    "ReadOnly",
    "NetworkingAndSecurity",
    "RemoteConsoleAccess",
    "RemoteConsoleVirtualMediaAccess",
    "RemoteServerPowerRestartAccess",
    "BasicConfiguration",
    "AbilityToClearEventLogs",
    "AdvancedConfiguration",
};

Scenario Login(const std::string& authority) {
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.4.1.255", 1).Answer("4.1.4.1.9", authority);
  return scenario;
}

// The levels that are enabled, in the order in which they were set; every
// other one has to be set and disabled.
Lines EnabledLevels(const Scenario& scenario) {
  Lines enabled;
  const Lines properties = scenario.Record().Properties(1);
  EXPECT_EQ(properties.size(), 16U);
  std::size_t place = 6;  // behind the keys and "Instance"
  for (const std::string level : kLevels) {
    const std::string property = place < properties.size() ? properties.at(place) : "unset";
    if (property == level + " string Enabled") {
      enabled.push_back(level);
    } else {
      EXPECT_EQ(property, level + " string Disabled");
    }
    ++place;
  }
  return enabled;
}

TEST(DialinAuthority, EachBitEnablesItsOwnLevelAndTheLastSixNone) {
  for (unsigned int bit = 0; bit < 16; ++bit) {
    const unsigned int value = 1U << bit;
    Scenario scenario = Login(Bytes({static_cast<int>(value & 255), static_cast<int>(value >> 8)}));
    scenario.Run({kDialin});
    EXPECT_EQ(EnabledLevels(scenario), bit < 10 ? Lines{kLevels[bit]} : Lines{}) << bit;
    EXPECT_EQ(scenario.Record().Beginning({"log 4 Authority"}),
              Lines{"log 4 Authority Levels value = " + std::to_string(value)});
  }
}

TEST(DialinAuthority, BitsAddUp) {
  const struct {
    std::string reply;
    const char* value;
    Lines enabled;
  } cases[] = {
      {Bytes({0, 0}), "0", {}},
      {Bytes({3, 2}), "515", {"DenyAlways", "Supervisor", "AdvancedConfiguration"}},
      {Bytes({3, 1}), "259", {"DenyAlways", "Supervisor", "AbilityToClearEventLogs"}},
      {Bytes({0, 0xFC}), "64512", {}},
      {Bytes({0xFF, 0xFF}), "65535", {std::begin(kLevels), std::end(kLevels)}},
      {Bytes({0xFF, 3}), "1023", {std::begin(kLevels), std::end(kLevels)}},
      {Bytes({0, 0x80}), "32768", {}},
  };
  for (const auto& [reply, value, enabled] : cases) {
    Scenario scenario = Login(reply);
    scenario.Run({kDialin});
    EXPECT_EQ(EnabledLevels(scenario), enabled) << value;
    EXPECT_EQ(scenario.Record().Beginning({"log 4 Authority"}),
              Lines{std::string("log 4 Authority Levels value = ") + value});
  }
}

TEST(DialinAuthority, NoLevelHasALineOfItsOwn) {
  Scenario scenario = Login(Bytes({0xFF, 0xFF}));
  scenario.Run({kDialin});
  EXPECT_EQ(ReaderLines(scenario, "getDialinSettings", 1),
            Join({{"4 TStrakePluginCallbacks::getDialinSettings entered. Instance #1"},
                  Unanswered("4.1.4.1.255"),
                  {"3 No data retrieved for Dial in settings."},
                  Answered("4.1.4.1.9", 2),
                  {"4 Authority Levels value = 65535"},
                  Unanswered("4.4.2"),
                  {"3 No data retrieved for Timezone."},
                  Unanswered("4.1.4.1.3"),
                  {"3 No data retrieved for Last Login.",
                   "4 TStrakePluginCallbacks::getDialinSettings completed."}}));
}

TEST(DialinAuthority, AReplyOfOneByteHasNoHighByteWhateverTheEntryLeft) {
  for (const bool entrySucceeds : {true, false}) {
    Scenario scenario = Login(Bytes({4}));
    const std::string entry(350, '\xFF');
    scenario.Answer("4.1.4.1.255", {entrySucceeds ? Success(entry) : Failure(entry, 350)});
    scenario.Run({kDialin});
    EXPECT_EQ(scenario.Record().Beginning({"log 4 Authority"}),
              Lines{"log 4 Authority Levels value = 4"});
    EXPECT_EQ(Property(scenario, 1, "ReadOnly"), "string Enabled");
    EXPECT_EQ(Property(scenario, 1, "AbilityToClearEventLogs"), "string Disabled");
  }
}

TEST(DialinAuthority, BytesBehindTheSecondMeanNothing) {
  Scenario scenario = Login(Bytes({1, 0, 255, 255, 255}));
  scenario.Run({kDialin});
  EXPECT_EQ(EnabledLevels(scenario), Lines{"DenyAlways"});
}

}  // namespace
}  // namespace strake::tests
