// Dial-in settings: one login an instance, put together from four replies.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kEntered = "4 TStrakePluginCallbacks::getDialinSettings entered. Instance #1";
const std::string kCompleted = "4 TStrakePluginCallbacks::getDialinSettings completed.";

const Lines kKeys = {
    "CreationClassName string VELKSG_ServProc_DialProtocolEndpoint",
    "Name string 9999-AC1-Node1",
    "SourceNode uint8 1",
    "SystemCreationClassName string CIM_ComputerSystem",
    "SystemName string SRV1",
    "Instance string 1",
};

const std::string kEntrySent =
    "dot 2 4.1.4.1.255 sp 0 size 350 -> true 27 "
    "2180081055534552494400"
    "22810101"
    "238209143535353031393900";

// What each of the four commands logs and sets when it brings data and when not.
struct Step {
  const char* identifier;
  std::string reply;
  Lines told;
  Lines set;
  const char* noData;
};

std::vector<Step> Steps(bool hasTimeZone) {
  return {
      {"4.1.4.1.255",
       DialinReply(),
       {"4 [LoginID] Vector ID = 33 128", "4 [LoginID] Data length = 8",
        "4 [LoginID] Max length of string = 16", "3 LoginID = USERID",
        "4 [LoginFlags] Vector ID = 34 129",
        "3 LoginFlags = Read only permission. Dial back disabled",
        "4 [DialBackNumber] Vector ID = 35 130", "4 [DialBackNumber] Data length = 9",
        "4 [DialBackNumber] Max length of string = 20", "3 DialBackNumber = 5550199"},
       {"LoginID string USERID", "LoginFlags string Read only permission. Dial back disabled",
        "DialBackNumber string 5550199"},
       "3 No data retrieved for Dial in settings."},
      {"4.1.4.1.9",
       Bytes({0x22, 1}),
       {"4 Authority Levels value = 290"},
       {"DenyAlways string Disabled", "Supervisor string Enabled", "ReadOnly string Disabled",
        "NetworkingAndSecurity string Disabled", "RemoteConsoleAccess string Disabled",
        "RemoteConsoleVirtualMediaAccess string Enabled",
        "RemoteServerPowerRestartAccess string Disabled", "BasicConfiguration string Disabled",
        "AbilityToClearEventLogs string Enabled", "AdvancedConfiguration string Disabled"},
       "3 No data retrieved for Authority Levels."},
      {"4.4.2", Bytes({60, 0}), {"4 Timezone = 60"}, {}, "3 No data retrieved for Timezone."},
      {"4.1.4.1.3",
       Bytes({9, 3, 7, 0, 14, 5, 9}),
       {std::string("3 LastLogin = 3/7/2009 14:5:9 GMT offset (") + (hasTimeZone ? "60" : "0") +
        ")"},
       {std::string("LastLogin datetime 20090307140509.000000+") + (hasTimeZone ? "060" : "000")},
       "3 No data retrieved for Last Login."},
  };
}

Scenario OneLogin() {
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.4.1.255", 1);
  return scenario;
}

TEST(DialinSettings, TellAndPublishWhatEachOfTheFourCommandsBringsAndOnlyThat) {
  for (unsigned int answered = 0; answered < 16; ++answered) {
    SCOPED_TRACE(answered);
    Scenario scenario = OneLogin();
    Lines logs = {kEntered};
    Lines properties = kKeys;
    unsigned int bit = 1;
    for (const Step& step : Steps((answered & 4) != 0)) {
      if ((answered & bit) != 0) {
        scenario.Answer(step.identifier, step.reply);
        const auto length = static_cast<int>(step.reply.size());
        logs = Join({logs, Answered(step.identifier, length), step.told});
        properties = Join({properties, step.set});
      } else {
        logs = Join({logs, Unanswered(step.identifier), {step.noData}});
      }
      bit <<= 1;
    }
    logs.push_back(kCompleted);
    scenario.Run({kDialin});
    EXPECT_EQ(ReaderLines(scenario, "getDialinSettings", 1), logs);
    EXPECT_EQ(scenario.Record().Properties(1), properties);
    EXPECT_EQ(scenario.Record().Beginning({"CreateInstance", "Commit"}),
              (Lines{"CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint2", "Commit 1"}));
  }
}

TEST(DialinSettings, AnEmptyReplyIsNoData) {
  Scenario scenario = OneLogin();
  Lines logs = {kEntered};
  for (const Step& step : Steps(false)) {
    scenario.Answer(step.identifier, {Reported(step.reply, 0)});
    logs = Join({logs, Answered(step.identifier, 0), {step.noData}});
  }
  logs.push_back(kCompleted);
  scenario.Run({kDialin});
  EXPECT_EQ(ReaderLines(scenario, "getDialinSettings", 1), logs);
  EXPECT_EQ(scenario.Record().Properties(1), kKeys);
}

TEST(DialinSettings, AreCreatedBeforeTheFirstSendAndCommittedAfterTheLast) {
  Scenario scenario = DialServer(1, 0, 1);
  scenario.Run({kDialin});
  EXPECT_EQ(
      scenario.Record().Beginning({"dot 2 4.1.4", "dot 2 4.4", "GetClass", "CreateInstance",
                                   "Set 1 CreationClassName", "Set 1 Name", "Set 1 SourceNode",
                                   "GetSystemCreationClassName", "Set 1 SystemC", "Set 1 Instance",
                                   "Set 1 LoginID", "Set 1 LastLogin", "Commit"}),
      (Lines{"GetClass VELKSG_ServProc_DialProtocolEndpoint2",
             "CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint2",
             "Set 1 CreationClassName string VELKSG_ServProc_DialProtocolEndpoint",
             "Set 1 Name string 9999-AC1-Node1", "Set 1 SourceNode uint8 1",
             "GetSystemCreationClassName -> CIM_ComputerSystem",
             "Set 1 SystemCreationClassName string CIM_ComputerSystem", "Set 1 Instance string 1",
             kEntrySent, "Set 1 LoginID string USERID",
             "dot 2 4.1.4.1.9 sp 0 size 350 -> true 2 0200",
             "dot 2 4.4.2 sp 0 size 350 -> true 2 3C00",
             "dot 2 4.1.4.1.3 sp 0 size 350 -> true 7 090307000E0509",
             "Set 1 LastLogin datetime 20090307140509.000000+060", "Commit 1"}));
}

TEST(DialinSettings, AskForEachLoginByItsNumberAndForTheTimeZoneEveryTime) {
  Scenario scenario = DialServer(1, 0, 2);
  scenario.Run({kDialin});
  Lines sent;
  for (const std::string& line : scenario.Record().Beginning({"dot 2 4.1.4", "dot 2 4.4"})) {
    sent.push_back(line.substr(6, line.find(" sp") - 6));
  }
  EXPECT_EQ(sent, (Lines{"4.1.4.1.255", "4.1.4.1.9", "4.4.2", "4.1.4.1.3", "4.1.4.2.255",
                         "4.1.4.2.9", "4.4.2", "4.1.4.2.3"}));
  EXPECT_EQ(Property(scenario, 1, "Instance"), "string 1");
  EXPECT_EQ(Property(scenario, 2, "Instance"), "string 2");
}

TEST(DialinSettings, AShortEntryReadsAsZeros) {
  Scenario scenario = OneLogin();
  scenario.Answer("4.1.4.1.255", Bytes({33})).Run({kDialin});
  EXPECT_EQ(Property(scenario, 1, "LoginID"), "string ");
  EXPECT_EQ(Property(scenario, 1, "LoginFlags"), "string Read/write permision. Dial back disabled");
  EXPECT_EQ(Property(scenario, 1, "DialBackNumber"), "string ");
}

TEST(DialinSettings, LoginFlagsTellThePermissionAndOnlyDialBackThatIsOff) {
  const char* const texts[] = {"string Read/write permision. Dial back disabled",
                               "string Read only permission. Dial back disabled",
                               "string Read/write permision. ", "string Read only permission. "};
  for (int flags = 0; flags < 4; ++flags) {
    Scenario scenario = OneLogin();
    scenario.Answer("4.1.4.1.255", Text(0, 0, "x") + Plain(0, 0, Bytes({flags}))).Run({kDialin});
    EXPECT_EQ(Property(scenario, 1, "LoginFlags"), texts[flags]);
  }
}

}  // namespace
}  // namespace strake::tests
