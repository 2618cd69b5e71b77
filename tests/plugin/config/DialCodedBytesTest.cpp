// Every value of every coded byte in the dial records.
#include "tests/plugin/config/DialScenario.h"
#include "tests/support/PlainRecords.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

struct CodedByte {
  const char* className;
  const char* identifier;
  const char* record;
  PlainField field;

  // What the byte means.
  [[nodiscard]] std::string Meaning(int byte) const {
    PlainBytes value(256, 0);
    value[0] = static_cast<unsigned char>(byte);
    return field.decode(value);
  }
};

std::vector<CodedByte> CodedBytes() {
  const CodedByte records[] = {
      {kSerialPort, "4.1.2.1.255", "serial port", {}},
      {kDialout, "4.1.3.1.255", "dial-out settings", {}},
      {kDialin, "4.1.4.1.255", "dial-in login", {}},
      {kAlerts, "4.2.1.1", "dial-out alerts", {}},
  };
  std::vector<CodedByte> coded;
  for (CodedByte record : records) {
    for (const PlainField& field : PlainRecordNamed(record.record).fields) {
      if (field.form == PlainForm::Data) {
        record.field = field;
        coded.push_back(record);
      }
    }
  }
  return coded;
}

std::string NameOf(const testing::TestParamInfo<CodedByte>& info) { return info.param.field.name; }

// The record with this byte; the other coded bytes are zero, the texts empty.
std::string RecordWith(const CodedByte& coded, int byte) {
  std::string reply;
  for (const PlainField& field : PlainRecordNamed(coded.record).fields) {
    const bool isIt = field.name == coded.field.name;
    reply += field.form != PlainForm::Data ? Text(0, 0, "") : Plain(0, 0, Bytes({isIt ? byte : 0}));
  }
  return reply;
}

std::string ToldLine(const CodedByte& coded, int byte) {
  return "log 3 " + coded.field.name + " = " + coded.Meaning(byte);
}

// Instances count from 1, byte values from 0.
std::string SetLine(const CodedByte& coded, int byte) {
  return "Set " + std::to_string(byte + 1) + " " + coded.field.name + " string " +
         coded.Meaning(byte);
}

class DialCodedByte : public testing::TestWithParam<CodedByte> {
 protected:
  // Asks once for each of the 256 values.
  static Scenario AskForAll(const CodedByte& coded) {
    platform::ReplySequence replies;
    for (int byte = 0; byte < 256; ++byte) {
      replies.push_back(Success(RecordWith(coded, byte)));
    }
    Scenario scenario = Scenario::Orlo();
    scenario.Component("4.1.3.1.255", 1).Component("4.1.4.1.255", 1);
    scenario.Answer(coded.identifier, replies).RunAll(std::vector<Classes>(256, {coded.className}));
    return scenario;
  }
};

TEST_P(DialCodedByte, ReadsAsItsTableSaysInTheLogAndOnTheInstance) {
  const CodedByte& coded = GetParam();
  const std::string& name = coded.field.name;
  const Scenario scenario = AskForAll(coded);
  Lines logged;
  Lines set;
  for (int byte = 0; byte < 256; ++byte) {
    logged.push_back(ToldLine(coded, byte));
    set.push_back(SetLine(coded, byte));
  }
  EXPECT_EQ(scenario.Record().Beginning({"log 3 " + name + " = "}), logged);
  Lines seen;
  for (const std::string& line : scenario.Record().Beginning({"Set "})) {
    if (line.find(" " + name + " string ") != std::string::npos) {
      seen.push_back(line);
    }
  }
  EXPECT_EQ(seen, set);
}

INSTANTIATE_TEST_SUITE_P(EveryValue, DialCodedByte, testing::ValuesIn(CodedBytes()), NameOf);

TEST(DialLoginFlags, NeverTellThatDialBackIsEnabled) {
  platform::ReplySequence replies;
  for (int byte = 0; byte < 256; ++byte) {
    replies.push_back(Success(Text(0, 0, "") + Plain(0, 0, Bytes({byte}))));
  }
  Scenario scenario = Scenario::Orlo();
  scenario.Component("4.1.4.1.255", 1).Answer("4.1.4.1.255", replies);
  scenario.RunAll(std::vector<Classes>(256, {kDialin}));
  EXPECT_EQ(scenario.Record().Beginning({"log 3 LoginFlags = "}).size(), 256U);
  for (const std::string& line : scenario.Record().All()) {
    EXPECT_EQ(line.find("Dial back enabled"), std::string::npos) << line;
  }
}

}  // namespace
}  // namespace strake::tests
