// Dial-out alerts: which kinds of alert an SP sends.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kEntered = "4 TStrakePluginCallbacks::getDialOutAlerts entered. Instance #1";
// Of seven elements that are all enabled.
const std::string kSent =
    "dot 2 4.2.1.1 sp 0 size 350 -> true 28 "
    "31950101"
    "32960101"
    "33970101"
    "34980101"
    "35990101"
    "369A0101"
    "379B0101";
const std::string kCompleted = "4 TStrakePluginCallbacks::getDialOutAlerts completed.";

Scenario Alerts(const std::string& reply) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.2.1.1", reply).Run({kAlerts});
  return scenario;
}

// The seven values, in order.
std::string Values(const Scenario& scenario) {
  std::string values;
  for (const char* const name : {"Temperature", "Voltage", "Tamper", "MultipleFanFailure",
                                 "PowerFailure", "HardDrive", "VRMFailure"}) {
    const std::string value = Property(scenario, 1, name);
    values += value == "string Enabled" ? "E" : value == "string Disabled" ? "D" : "?";
  }
  return values;
}

TEST(DialOutAlerts, TellEachKindWithItsVectorIdLengthAndState) {
  const Scenario scenario = Alerts(AlertReply(Bytes({1, 0, 0, 1, 1, 0, 1})));
  EXPECT_EQ(ReaderLines(scenario, "getDialOutAlerts", 1),
            (Lines{
                kEntered,
                "4 TStrakePluginCallbacks::sendCommand entered.",
                "4 Sent command: 4.2.1.1. Status: ADDR. ReturnDataLen:28 for spInstance#: 0.",
                "4 TStrakePluginCallbacks::sendCommand completed.",
                "4 [Temperature] Vector ID = 49 149",
                "4 [Temperature] Data length = 1",
                "3 Temperature = Enabled",
                "4 [Voltage] Vector ID = 50 150",
                "4 [Voltage] Data length = 1",
                "3 Voltage = Disabled",
                "4 [Tamper] Vector ID = 51 151",
                "4 [Tamper] Data length = 1",
                "3 Tamper = Disabled",
                "4 [MultipleFanFailure] Vector ID = 52 152",
                "4 [MultipleFanFailure] Data length = 1",
                "3 MultipleFanFailure = Enabled",
                "4 [PowerFailure] Vector ID = 53 153",
                "4 [PowerFailure] Data length = 1",
                "3 PowerFailure = Enabled",
                "4 [HardDrive] Vector ID = 54 154",
                "4 [HardDrive] Data length = 1",
                "3 HardDrive = Disabled",
                "4 [VRMFailure] Vector ID = 55 155",
                "4 [VRMFailure] Data length = 1",
                "3 VRMFailure = Enabled",
                kCompleted,
            }));
}

TEST(DialOutAlerts, HaveFiveKeysSevenKindsAndNoInstanceNumber) {
  const Scenario scenario = Alerts(AlertReply(Bytes({1, 0, 0, 1, 1, 0, 1})));
  EXPECT_EQ(scenario.Record().Properties(1),
            (Lines{
                "CreationClassName string VELKSG_ServProc_DialProtocolEndpoint",
                "SourceNode uint8 1",
                "Name string 9999-AC1-Node1",
                "SystemCreationClassName string CIM_ComputerSystem",
                "SystemName string SRV1",
                "Temperature string Enabled",
                "Voltage string Disabled",
                "Tamper string Disabled",
                "MultipleFanFailure string Enabled",
                "PowerFailure string Enabled",
                "HardDrive string Disabled",
                "VRMFailure string Enabled",
            }));
}

TEST(DialOutAlerts, AreAskedForWithFourBytesAndCommittedOnce) {
  const Scenario scenario = Alerts(AlertReply(Bytes({1, 1, 1, 1, 1, 1, 1})));
  EXPECT_EQ(scenario.Record().Beginning({"dot 2 4.2", "GetClass", "CreateInstance", "Commit"}),
            (Lines{kSent, "GetClass VELKSG_ServProc_DialProtocolEndpoint4",
                   "CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint4", "Commit 1"}));
}

TEST(DialOutAlerts, AreEnabledByAnyByteThatIsNotZero) {
  EXPECT_EQ(Values(Alerts(AlertReply(Bytes({0x80, 0, 2, 0xFF, 0x7F, 0, 1})))), "EDEEEDE");
}

TEST(DialOutAlerts, LookAtAnElementsFirstByteOnly) {
  EXPECT_EQ(Values(Alerts(Plain(1, 1, Bytes({0, 1, 1})) + Plain(2, 2, Bytes({1, 0, 0})))),
            "DEDDDDD");
}

TEST(DialOutAlerts, AnElementWithoutDataIsDisabledAndTheNextBeginsThreeBytesOn) {
  const Scenario scenario =
      Alerts(Plain(1, 1, "") + Plain(2, 3, Bytes({1})) + Plain(4, 5, "") + Plain(6, 7, Bytes({1})));
  EXPECT_EQ(Values(scenario), "DEDEDDD");
  const Lines lines = ReaderLines(scenario, "getDialOutAlerts", 1);
  EXPECT_EQ(Lines(lines.begin() + 4, lines.begin() + 10),
            (Lines{"4 [Temperature] Vector ID = 1 1", "4 [Temperature] Data length = 0",
                   "3 Temperature = Disabled", "4 [Voltage] Vector ID = 2 3",
                   "4 [Voltage] Data length = 1", "3 Voltage = Enabled"}));
}

TEST(DialOutAlerts, BehindAShortReplyAreDisabled) {
  const std::string reply = AlertReply(Bytes({1, 1, 1, 1, 1, 1, 1}));
  const char* const values[] = {"DDDDDDD", "EDDDDDD", "EEDDDDD", "EEEDDDD",
                                "EEEEDDD", "EEEEEDD", "EEEEEED", "EEEEEEE"};
  for (std::size_t length = 1; length <= 28; ++length) {
    EXPECT_EQ(Values(Alerts(reply.substr(0, length))), values[length / 4]) << length;
  }
}

TEST(DialOutAlerts, WithoutAReplyLeaveOneLineAndNoInstance) {
  const struct {
    const char* title;
    platform::Reply reply;
    Lines sent;
  } cases[] = {
      {"failed", Failure(), Unanswered("4.2.1.1")},
      {"failed, with bytes", Failure(Bytes({1, 1, 1, 1}), 4), Unanswered("4.2.1.1", 4)},
      {"empty", Success(""), Answered("4.2.1.1", 0)},
  };
  for (const auto& [title, reply, sent] : cases) {
    SCOPED_TRACE(title);
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.2.1.1", {reply}).Run({kAlerts});
    EXPECT_EQ(ReaderLines(scenario, "getDialOutAlerts", 1),
              Join({{kEntered}, sent, {"3 No data retrieved for Dialout Alerts.", kCompleted}}));
    EXPECT_EQ(scenario.Record().Beginning({"GetClass", "CreateInstance", "Set", "Commit"}),
              Lines{});
  }
}

}  // namespace
}  // namespace strake::tests
