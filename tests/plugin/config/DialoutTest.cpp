// Dial-out settings: one alert recipient an instance.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kEntered = "4 TStrakePluginCallbacks::getDialoutSettings entered. Instance #1";
const std::string kCompleted = "4 TStrakePluginCallbacks::getDialoutSettings completed.";

const std::string kCriticalOnly = "Alert recipient receives enabled critical alerts only";

Scenario OneEntry(const std::string& reply) {
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.3.1.255", 1).Answer("4.1.3.1.255", reply).Run({kDialout});
  return scenario;
}

TEST(DialoutSettings, TellTheirElevenElementsInTheRecordsOrder) {
  const Scenario scenario = OneEntry(DialoutReply());
  EXPECT_EQ(ReaderLines(scenario, "getDialoutSettings", 1),
            (Lines{
                kEntered,
                "4 TStrakePluginCallbacks::sendCommand entered.",
                "4 Sent command: 4.1.3.1.255. Status: ADDR. ReturnDataLen:110 for spInstance#: 0.",
                "4 TStrakePluginCallbacks::sendCommand completed.",
                "4 [DialStatus] Vector ID = 17 0",
                "3 DialStatus = Valid and enabled",
                "4 [PhoneNumberLAN] Vector ID = 18 1",
                "4 [PhoneNumberLAN] Data length = 9",
                "4 [PhoneNumberLAN] Max length of string = 8",
                "3 PhoneNumberLAN = 5550100",
                "4 [TextDescription] Vector ID = 19 2",
                "4 [TextDescription] Data length = 12",
                "4 [TextDescription] Max length of string = 11",
                "3 TextDescription = Night desk",
                "4 [ConnectionType] Vector ID = 20 3",
                "3 ConnectionType = Modem",
                "4 [DialoutID] Vector ID = 21 4",
                "4 [DialoutID] Data length = 6",
                "4 [DialoutID] Max length of string = 5",
                "3 DialoutID = desk",
                "4 [DialoutPassword] Vector ID = 22 5",
                "4 [DialoutPassword] Data length = 9",
                "4 [DialoutPassword] Max length of string = 8",
                "3 DialoutPassword = letmein",
                "4 [PagerPIN] Vector ID = 23 6",
                "4 [PagerPIN] Data length = 6",
                "4 [PagerPIN] Max length of string = 5",
                "3 PagerPIN = 4711",
                "4 [EmailAddress] Vector ID = 24 7",
                "4 [EmailAddress] Data length = 18",
                "4 [EmailAddress] Max length of string = 17",
                "3 EmailAddress = desk@example.com",
                "4 [PPPLoginID] Vector ID = 25 8",
                "4 [PPPLoginID] Data length = 5",
                "4 [PPPLoginID] Max length of string = 4",
                "3 PPPLoginID = ppp",
                "4 [PPPPassword] Vector ID = 26 9",
                "4 [PPPPassword] Data length = 9",
                "4 [PPPPassword] Max length of string = 8",
                "3 PPPPassword = pppword",
                "4 [SelectiveAlertNotification] Vector ID = 27 10",
                "3 SelectiveAlertNotification = Alert recipient receives all enabled alerts",
                kCompleted,
            }));
}

TEST(DialoutSettings, PublishKeysAndValuesUnmasked) {
  const Scenario scenario = OneEntry(DialoutReply());
  EXPECT_EQ(scenario.Record().Properties(1),
            (Lines{
                "CreationClassName string VELKSG_ServProc_DialProtocolEndpoint",
                "SourceNode uint8 1",
                "Name string 9999-AC1-Node1",
                "SystemCreationClassName string CIM_ComputerSystem",
                "SystemName string SRV1",
                "Instance string 1",
                "DialStatus string Valid and enabled",
                "PhoneNumberLAN string 5550100",
                "TextDescription string Night desk",
                "ConnectionType string Modem",
                "DialoutID string desk",
                "DialoutPassword string letmein",
                "PagerPIN string 4711",
                "EmailAddress string desk@example.com",
                "PPPLoginID string ppp",
                "PPPPassword string pppword",
                "SelectiveAlertNotification string Alert recipient receives all enabled alerts",
            }));
}

TEST(DialoutSettings, AreNumberedFromOne) {
  Scenario scenario = DialServer(1, 3, 0);
  scenario.Run({kDialout});
  EXPECT_EQ(scenario.Record().Beginning({"CreateInstance", "Commit"}),
            (Lines{"CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint1", "Commit 1",
                   "CreateInstance 2 VELKSG_ServProc_DialProtocolEndpoint1", "Commit 2",
                   "CreateInstance 3 VELKSG_ServProc_DialProtocolEndpoint1", "Commit 3"}));
  for (const unsigned long entry : {1UL, 2UL, 3UL}) {
    EXPECT_EQ(Property(scenario, entry, "Instance"), "string " + std::to_string(entry));
  }
}

TEST(DialoutSettings, WithoutAReplyLeaveOneLineAndNoInstance) {
  const struct {
    const char* title;
    platform::Reply reply;
    Lines sent;
  } cases[] = {
      {"failed", Failure(), Unanswered("4.1.3.1.255")},
      {"failed, with bytes", Failure(DialoutReply(), 110), Unanswered("4.1.3.1.255", 110)},
      {"empty", Success(""), Answered("4.1.3.1.255", 0)},
  };
  for (const auto& [title, reply, sent] : cases) {
    SCOPED_TRACE(title);
    Scenario scenario = Scenario::Orlo();
    scenario.Component("4.1.3.1.255", 1).Answer("4.1.3.1.255", {reply}).Run({kDialout});
    EXPECT_EQ(ReaderLines(scenario, "getDialoutSettings", 1),
              Join({{kEntered}, sent, {"3 No data retrieved for Dial out settings.", kCompleted}}));
    EXPECT_EQ(scenario.Record().Beginning({"GetClass", "CreateInstance", "Set", "Commit"}),
              Lines{});
  }
}

TEST(DialoutSettings, AShortReplyReadsAsZeros) {
  const Lines properties = OneEntry(Bytes({17})).Record().Properties(1);
  ASSERT_EQ(properties.size(), 17U);
  EXPECT_EQ(
      Lines(properties.begin() + 6, properties.end()),
      (Lines{"DialStatus string Invalid", "PhoneNumberLAN string ", "TextDescription string ",
             "ConnectionType string Numeric pager", "DialoutID string ", "DialoutPassword string ",
             "PagerPIN string ", "EmailAddress string ", "PPPLoginID string ",
             "PPPPassword string ", "SelectiveAlertNotification string " + kCriticalOnly}));
}

TEST(DialoutSettings, CodesThatNobodyKnowsAreNone) {
  const struct {
    int status;
    int connection;
    int selective;
    std::string texts[3];
  } cases[] = {
      {2,
       8,
       0,
       {"string Valid and enabled", "string Ostrel alert over a LAN connection",
        "string " + kCriticalOnly}},
      {1,
       0,
       1,
       {"string Valid but disabled", "string Numeric pager",
        "string Alert recipient receives all enabled alerts"}},
      {3, 9, 2, {"string None", "string None", "string None"}},
      {0x80, 0xFF, 0x80, {"string None", "string None", "string None"}},
  };
  for (const auto& [status, connection, selective, texts] : cases) {
    std::string reply = Plain(0, 0, Bytes({status})) + Text(0, 0, "") + Text(0, 0, "") +
                        Plain(0, 0, Bytes({connection}));
    for (int i = 0; i < 6; ++i) {
      reply += Text(0, 0, "");
    }
    const Scenario scenario = OneEntry(reply + Plain(0, 0, Bytes({selective})));
    EXPECT_EQ(Property(scenario, 1, "DialStatus"), texts[0]);
    EXPECT_EQ(Property(scenario, 1, "ConnectionType"), texts[1]);
    EXPECT_EQ(Property(scenario, 1, "SelectiveAlertNotification"), texts[2]);
  }
}

TEST(DialoutSettings, APagerPinOfOnlyItsMaximumIsEmptyAndTakesFourBytes) {
  const struct {
    int maximum;
    int nextVectorId;
    const char* pin;
  } cases[] = {{0, 'E', "string "}, {8, 0, "string "}, {8, 'E', "string E"}};
  for (const auto& [maximum, next, pin] : cases) {
    const Scenario scenario =
        OneEntry(Plain(0, 0, Bytes({2})) + Text(0, 0, "") + Text(0, 0, "") +
                 Plain(0, 0, Bytes({2})) + Text(0, 0, "") + Text(0, 0, "") +
                 Plain(23, 6, Bytes({maximum})) + Text(next, 7, "desk@example.com"));
    EXPECT_EQ(Property(scenario, 1, "PagerPIN"), pin);
    EXPECT_EQ(Property(scenario, 1, "EmailAddress"), "string desk@example.com");
    EXPECT_EQ(scenario.Record().Beginning({"log 4 [PagerPIN]", "log 4 [EmailAddress] Vector"}),
              (Lines{"log 4 [PagerPIN] Vector ID = 23 6", "log 4 [PagerPIN] Data length = 1",
                     "log 4 [PagerPIN] Max length of string = " + std::to_string(maximum),
                     "log 4 [EmailAddress] Vector ID = " + std::to_string(next) + " 7"}));
  }
}

}  // namespace
}  // namespace strake::tests
