// Serial ports: what is sent, told and published for each of the two.
#include "tests/plugin/config/DialScenario.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

Scenario OnePort(const std::string& reply) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("4.1.2.1.255", reply).Run({kSerialPort});
  return scenario;
}

// The sixteen elements of a port that says nothing.
std::string EmptyPort() {
  std::string reply;
  for (const bool isText : {false, false, false, false, true, false, true, true, false, true, true,
                            true, true, true, true, true}) {
    reply += isText ? Text(0, 0, "") : Plain(0, 0, Bytes({0}));
  }
  return reply;
}

TEST(SerialPort, TellsItsSixteenElementsInTheRecordsOrder) {
  const Scenario scenario = OnePort(SerialPortReply());
  EXPECT_EQ(ReaderLines(scenario, "getSerialPortData", 1),
            (Lines{
                "4 TStrakePluginCallbacks::getSerialPortData entered. Instance #1",
                "4 TStrakePluginCallbacks::sendCommand entered.",
                "4 Sent command: 4.1.2.1.255. Status: ADDR. ReturnDataLen:116 for spInstance#: 0.",
                "4 TStrakePluginCallbacks::sendCommand completed.",
                "4 [BaudRate] Vector ID = 1 255",
                "3 BaudRate = 9600",
                "4 [Parity] Vector ID = 2 254",
                "3 Parity = Odd",
                "4 [StopBits] Vector ID = 3 253",
                "3 StopBits = 2 or 1.5",
                "4 [NullModem] Vector ID = 4 252",
                "3 NullModem = Modem present",
                "4 [InitializationString] Vector ID = 5 251",
                "4 [InitializationString] Data length = 5",
                "4 [InitializationString] Max length of string = 40",
                "3 InitializationString = ATZ",
                "4 [PortEnabled] Vector ID = 6 250",
                "3 PortEnabled = Enabled",
                "4 [ModemCallerIDString] Vector ID = 7 249",
                "4 [ModemCallerIDString] Data length = 11",
                "4 [ModemCallerIDString] Max length of string = 40",
                "3 ModemCallerIDString = AT+VCID=1",
                "4 [FactorySettingsString] Vector ID = 8 248",
                "4 [FactorySettingsString] Data length = 6",
                "4 [FactorySettingsString] Max length of string = 40",
                "3 FactorySettingsString = AT&F",
                "4 [ModemEscapeGuardTime] Vector ID = 9 247",
                "3 ModemEscapeGuardTime = 100 msecs",
                "4 [ModemEscapeString] Vector ID = 10 246",
                "4 [ModemEscapeString] Data length = 5",
                "4 [ModemEscapeString] Max length of string = 4",
                "3 ModemEscapeString = +++",
                "4 [ModemPrefixString] Vector ID = 11 245",
                "4 [ModemPrefixString] Data length = 4",
                "4 [ModemPrefixString] Max length of string = 3",
                "3 ModemPrefixString = AT",
                "4 [ModemPostfixString] Vector ID = 12 244",
                "4 [ModemPostfixString] Data length = 3",
                "4 [ModemPostfixString] Max length of string = 2",
                "3 ModemPostfixString = \r",
                "4 [ModemAutoAnswerString] Vector ID = 13 243",
                "4 [ModemAutoAnswerString] Data length = 8",
                "4 [ModemAutoAnswerString] Max length of string = 7",
                "3 ModemAutoAnswerString = ATS0=1",
                "4 [ModemAutoAnswerStopString] Vector ID = 14 242",
                "4 [ModemAutoAnswerStopString] Data length = 8",
                "4 [ModemAutoAnswerStopString] Max length of string = 7",
                "3 ModemAutoAnswerStopString = ATS0=0",
                "4 [ModemQueryString] Vector ID = 15 241",
                "4 [ModemQueryString] Data length = 6",
                "4 [ModemQueryString] Max length of string = 5",
                "3 ModemQueryString = ATI3",
                "4 [ModemHangupString] Vector ID = 16 240",
                "4 [ModemHangupString] Data length = 6",
                "4 [ModemHangupString] Max length of string = 5",
                "3 ModemHangupString = ATH0",
                "4 TStrakePluginCallbacks::getSerialPortData completed.",
            }));
}

TEST(SerialPort, PublishesItsKeysAndThenItsSixteenValuesAsTexts) {
  const Scenario scenario = OnePort(SerialPortReply());
  EXPECT_EQ(scenario.Record().Properties(1),
            (Lines{
                "CreationClassName string VELKSG_ServProc_DialProtocolEndpoint",
                "SourceNode uint8 1",
                "Name string 9999-AC1-Node1",
                "SystemCreationClassName string CIM_ComputerSystem",
                "SystemName string SRV1",
                "Instance string 1",
                "BaudRate string 9600",
                "Parity string Odd",
                "StopBits string 2 or 1.5",
                "NullModem string Modem present",
                "InitializationString string ATZ",
                "PortEnabled string Enabled",
                "ModemCallerIDString string AT+VCID=1",
                "FactorySettingsString string AT&F",
                "ModemEscapeGuardTime string 100 msecs",
                "ModemEscapeString string +++",
                "ModemPrefixString string AT",
                "ModemPostfixString string \r",
                "ModemAutoAnswerString string ATS0=1",
                "ModemAutoAnswerStopString string ATS0=0",
                "ModemQueryString string ATI3",
                "ModemHangupString string ATH0",
            }));
}

TEST(SerialPort, IsCreatedFromItsClassAfterTheReplyAndCommittedAtItsEnd) {
  const Scenario scenario = OnePort(SerialPortReply());
  const Lines calls = scenario.Record().Beginning(
      {"dot 2 4", "GetClass", "CreateInstance", "GetSystemCreationClassName", "Set 1 Name",
       "Set 1 SystemC", "Set 1 ModemHangupString", "Commit", "log 4 TStrakePluginCallbacks::getS"});
  ASSERT_GE(calls.size(), 10U);
  EXPECT_TRUE(calls[1].starts_with("dot 2 4.1.2.1.255 sp 0 size 350 -> true 116 01FF01030"));
  EXPECT_EQ(
      Lines(calls.begin() + 2, calls.begin() + 10),
      (Lines{"GetClass VELKSG_ServProc_DialProtocolEndpoint3",
             "CreateInstance 1 VELKSG_ServProc_DialProtocolEndpoint3",
             "Set 1 Name string 9999-AC1-Node1", "GetSystemCreationClassName -> CIM_ComputerSystem",
             "Set 1 SystemCreationClassName string CIM_ComputerSystem",
             "Set 1 ModemHangupString string ATH0", "Commit 1",
             "log 4 TStrakePluginCallbacks::getSerialPortData completed."}));
}

TEST(SerialPort, WithoutAReplyLeavesOneLineAndNoInstance) {
  const struct {
    const char* title;
    platform::Reply reply;
    Lines sent;
  } cases[] = {
      {"failed", Failure(), Unanswered("4.1.2.1.255")},
      {"failed, with bytes", Failure(SerialPortReply(), 116), Unanswered("4.1.2.1.255", 116)},
      {"empty", Success(""), Answered("4.1.2.1.255", 0)},
      {"bytes of length 0", Reported(SerialPortReply(), 0), Answered("4.1.2.1.255", 0)},
  };
  for (const auto& [title, reply, sent] : cases) {
    SCOPED_TRACE(title);
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.1.2.1.255", {reply}).Run({kSerialPort});
    EXPECT_EQ(ReaderLines(scenario, "getSerialPortData", 1),
              Join({{"4 TStrakePluginCallbacks::getSerialPortData entered. Instance #1"},
                    sent,
                    {"3 No data retrieved for Serial Port info.",
                     "4 TStrakePluginCallbacks::getSerialPortData completed."}}));
    EXPECT_EQ(scenario.Record().Beginning({"GetClass", "CreateInstance", "Set", "Commit"}),
              Lines{});
  }
}

TEST(SerialPort, AnyLengthButZeroCountsAsData) {
  for (const int length : {1, -1, 350, 351, 2147483647, -2147483647 - 1}) {
    Scenario scenario = Scenario::Orlo();
    scenario.Answer("4.1.2.1.255", {Reported("", length)}).Run({kSerialPort});
    EXPECT_EQ(Property(scenario, 1, "BaudRate"), "string 2400") << length;
    EXPECT_EQ(scenario.Record().Beginning({"Commit"}), Lines{"Commit 1"}) << length;
  }
}

TEST(SerialPort, AShortReplyReadsAsZeros) {
  const Scenario scenario = OnePort(Bytes({1}));
  const Lines properties = scenario.Record().Properties(1);
  ASSERT_EQ(properties.size(), 22U);
  EXPECT_EQ(
      Lines(properties.begin() + 6, properties.end()),
      (Lines{"BaudRate string 2400", "Parity string None", "StopBits string 1",
             "NullModem string Modem present", "InitializationString string ",
             "PortEnabled string Disabled", "ModemCallerIDString string ",
             "FactorySettingsString string ", "ModemEscapeGuardTime string 0 msecs",
             "ModemEscapeString string ", "ModemPrefixString string ", "ModemPostfixString string ",
             "ModemAutoAnswerString string ", "ModemAutoAnswerStopString string ",
             "ModemQueryString string ", "ModemHangupString string "}));
}

TEST(SerialPort, BaudRatesAreSignedStepsOf2400) {
  const struct {
    int byte;
    const char* text;
  } cases[] = {{0, "string 2400"}, {3, "string 9600"},      {7, "string 19200"},
               {0xFF, "string 0"}, {0x7F, "string 307200"}, {0x80, "string -304800"}};
  for (const auto& [byte, text] : cases) {
    EXPECT_EQ(Property(OnePort(Plain(0, 0, Bytes({byte}))), 1, "BaudRate"), text) << byte;
  }
}

TEST(SerialPort, AGuardTimeOfC8IsNegative) {
  std::string reply = EmptyPort();
  // Five plain elements of four bytes and three texts of five stand before it.
  reply.at(5 * 4 + 3 * 5 + 3) = static_cast<char>(0xC8);
  const Scenario scenario = OnePort(reply);
  EXPECT_EQ(Property(scenario, 1, "ModemEscapeGuardTime"), "string -56 msecs");
}

TEST(SerialPort, AnEvenParityCodeIsNone) {
  for (const int byte : {0, 2, 4, 6, 8}) {
    const std::string reply = Plain(0, 0, Bytes({0})) + Plain(0, 0, Bytes({byte}));
    EXPECT_EQ(Property(OnePort(reply), 1, "Parity"), "string None") << byte;
  }
}

TEST(SerialPort, OnlyTheFirstByteOfAPlainElementCounts) {
  const std::string reply = Plain(0, 0, Bytes({3, 9, 9})) + Plain(0, 0, Bytes({5, 1}));
  const Scenario scenario = OnePort(reply);
  EXPECT_EQ(Property(scenario, 1, "BaudRate"), "string 9600");
  EXPECT_EQ(Property(scenario, 1, "Parity"), "string Mark");
}

}  // namespace
}  // namespace strake::tests
