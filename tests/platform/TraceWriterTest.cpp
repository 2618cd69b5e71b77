#include "platform/boundary/TraceWriter.h"
#include "plugin/host/TCIMValue.h"

#include <array>
#include <functional>
#include <gtest/gtest.h>
#include <locale>
#include <nlohmann/json.hpp>
#include <sstream>

namespace strake::platform {
namespace {

using nlohmann::json;
using NVELKZEV20::TCIMDateTime;

std::string Traced(const std::function<void(TraceWriter&)>& tell) {
  std::ostringstream out;
  TraceWriter writer(out);
  tell(writer);
  return out.str();
}

TCIMDateTime SomeTime() {
  TCIMDateTime dateTime;
  dateTime.Set(2010, 6, 15, 13, 45, 30, 0, -120);
  return dateTime;
}

constexpr std::array<unsigned char, 5> kIdentifier{4, 9, 1, 1, 255};
constexpr std::array<unsigned char, 3> kReply{0x00, 0xAB, 0xFF};

TEST(Trace, HasOneLineAnEventWithExactlyItsKeys) {
  const struct {
    std::function<void(TraceWriter&)> tell;
    const char* line;
  } cases[] = {
      {[](TraceWriter& t) {
         t.OnQuery({"A", "B"});
       },
       R"({"event":"query","classes":["A","B"]})"},
      {[](TraceWriter& t) { t.OnQuery({}); }, R"({"event":"query","classes":[]})"},
      {[](TraceWriter& t) { t.OnQueryEnd(); }, R"({"event":"query_end"})"},
      {[](TraceWriter& t) { t.OnQueryThrew("x"); }, R"({"event":"query_end","throws":"x"})"},
      {[](TraceWriter& t) { t.OnLog(4, "m"); }, R"({"event":"log","level":4,"message":"m"})"},
      {[](TraceWriter& t) { t.OnHostText(BoundaryCall::GetMachineTypeFromID, "r"); },
       R"({"event":"host","call":"GetMachineTypeFromID","result":"r"})"},
      {[](TraceWriter& t) { t.OnHostThrew(BoundaryCall::GetMachineTypeFromID, "r"); },
       R"({"event":"host","call":"GetMachineTypeFromID","throws":"r"})"},
      {[](TraceWriter& t) { t.OnHostText(BoundaryCall::GetSystemName, "r"); },
       R"({"event":"host","call":"GetSystemName","result":"r"})"},
      {[](TraceWriter& t) { t.OnHostThrew(BoundaryCall::GetSystemName, "r"); },
       R"({"event":"host","call":"GetSystemName","throws":"r"})"},
      {[](TraceWriter& t) { t.OnHostText(BoundaryCall::GetSystemCreationClassName, "r"); },
       R"({"event":"host","call":"GetSystemCreationClassName","result":"r"})"},
      {[](TraceWriter& t) { t.OnGetLocalTime(); }, R"({"event":"host","call":"GetLocalTime"})"},
      {[](TraceWriter& t) { t.OnHostText(BoundaryCall::GetName, "r"); },
       R"({"event":"host","call":"GetName","result":"r"})"},
      {[](TraceWriter& t) { t.OnGetClass("C", true); },
       R"({"event":"host","call":"GetClass","class":"C","found":true})"},
      {[](TraceWriter& t) { t.OnGetClass("C", false); },
       R"({"event":"host","call":"GetClass","class":"C","found":false})"},
      {[](TraceWriter& t) { t.OnCreateInstance("C", 3); },
       R"({"event":"host","call":"CreateInstance","class":"C","instance":3})"},
      {[](TraceWriter& t) { t.OnSetProperty(3, "N", "v"); },
       R"({"event":"host","call":"SetProperty","instance":3,"name":"N","type":"string","value":"v"})"},
      {[](TraceWriter& t) { t.OnSetProperty(3, "N", -2147483647 - 1); },
       R"({"event":"host","call":"SetProperty","instance":3,"name":"N","type":"sint32","value":-2147483648})"},
      {[](TraceWriter& t) { t.OnSetProperty(3, "N", static_cast<unsigned short>(65535)); },
       R"({"event":"host","call":"SetProperty","instance":3,"name":"N","type":"uint16","value":65535})"},
      {[](TraceWriter& t) { t.OnSetProperty(3, "N", static_cast<unsigned char>(255)); },
       R"({"event":"host","call":"SetProperty","instance":3,"name":"N","type":"uint8","value":255})"},
      {[](TraceWriter& t) { t.OnSetProperty(3, "N", SomeTime()); },
       R"({"event":"host","call":"SetProperty","instance":3,"name":"N","type":"datetime",)"
       R"("value":"20100615134530.000000-120"})"},
      {[](TraceWriter& t) { t.OnCommit(3); }, R"({"event":"host","call":"Commit","instance":3})"},
      {[](TraceWriter& t) { t.OnSpQuestion("isDotcommand", true); },
       R"({"event":"sp","call":"isDotcommand","result":true})"},
      {[](TraceWriter& t) { t.OnDiscoverSPs(-1); },
       R"({"event":"sp","call":"discoverSPs","result":-1})"},
      {[](TraceWriter& t) { t.OnComponentCount(kIdentifier, 2); },
       R"({"event":"sp","call":"getComponentdotCmdList","id":"4.9.1.1.255","result":2})"},
      {[](TraceWriter& t) { t.OnComponentCount({}, -1); },
       R"({"event":"sp","call":"getComponentdotCmdList","id":"","result":-1})"},
      {[](TraceWriter& t) {
         t.OnDotSend({2, kIdentifier, 9, kReply.data(), 1, 350, true, 3, kReply});
       },
       R"({"event":"sp","call":"sendDotCommand","class":2,"id":"4.9.1.1.255","sp":1,"size":350,)"
       R"("result":true,"length":3,"reply":"00ABFF"})"},
      {[](TraceWriter& t) {
         t.OnDotSend({2, kIdentifier, 0, nullptr, 1, 0, false, -9, {}});
       },
       R"({"event":"sp","call":"sendDotCommand","class":2,"id":"4.9.1.1.255","sp":1,"size":0,)"
       R"("result":false,"length":-9,"reply":""})"},
      {[](TraceWriter& t) {
         t.OnKestleSend({2, 166, 166, 90, kReply.data(), 0, false, true, true, 3, kReply});
       },
       R"({"event":"sp","call":"sendKestleCommand","total":2,"code":166,"expected":166,)"
       R"("checksum":90,"data_length":0,"ack":false,"read":true,"result":true,"length":3,)"
       R"("reply":"00ABFF"})"},
  };
  for (const auto& one : cases) {
    const std::string text = Traced(one.tell);
    ASSERT_TRUE(text.ends_with('\n'));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
    EXPECT_EQ(json::parse(text), json::parse(one.line)) << text;
  }
}

TEST(Trace, WritesEveryByteAsTheCodePointOfItsValue) {
  std::string allBytes;
  for (int byte = 0; byte < 256; ++byte) {
    allBytes += static_cast<char>(byte);
  }
  const std::string line = Traced([&](TraceWriter& t) { t.OnLog(3, allBytes); });
  const std::string decoded = json::parse(line).at("message").get<std::string>();
  std::string expected;
  for (unsigned byte = 0; byte < 256; ++byte) {
    if (byte < 0x80) {
      expected += static_cast<char>(byte);
    } else {
      expected += static_cast<char>(0xC0U | (byte >> 6U));
      expected += static_cast<char>(0x80U | (byte & 0x3FU));
    }
  }
  EXPECT_EQ(decoded, expected);
}

TEST(Trace, HoldsNoByteThatATerminalObeys) {
  const std::string line = Traced([](TraceWriter& t) { t.OnQuery({"\x1b[2J\r\n\x7f\x9b"}); });
  EXPECT_EQ(line,
            "{\"event\":\"query\",\"classes\":[\"\\u001B[2J\\u000D\\u000A\\u007F\\u009B\"]}\n");
}

TEST(Trace, EscapesEveryText) {
  const std::string odd = "\"\\\n";
  const std::string quoted = R"("\"\\\u000A")";
  for (const std::string& line :
       {Traced([&](TraceWriter& t) { t.OnQuery({odd}); }),
        Traced([&](TraceWriter& t) { t.OnQueryThrew(odd); }),
        Traced([&](TraceWriter& t) { t.OnLog(1, odd); }),
        Traced([&](TraceWriter& t) { t.OnHostText(BoundaryCall::GetName, odd); }),
        Traced([&](TraceWriter& t) { t.OnHostThrew(BoundaryCall::GetSystemName, odd); }),
        Traced([&](TraceWriter& t) { t.OnGetClass(odd, true); }),
        Traced([&](TraceWriter& t) { t.OnCreateInstance(odd, 1); }),
        Traced([&](TraceWriter& t) { t.OnSetProperty(1, odd, 1); }),
        Traced([&](TraceWriter& t) { t.OnSetProperty(1, "N", odd); })}) {
    EXPECT_NE(line.find(quoted), std::string::npos) << line;
  }
}

struct Grouping : std::numpunct<char> {
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Trace, WritesNumbersInEveryLocaleAlike) {
  std::ostringstream out;
  out.imbue(std::locale(out.getloc(), new Grouping));
  TraceWriter(out).OnDiscoverSPs(1234567);
  EXPECT_EQ(out.str(), "{\"event\":\"sp\",\"call\":\"discoverSPs\",\"result\":1234567}\n");
}

TEST(Trace, HasNoLineForWhatCannotBeTold) {
  EXPECT_THROW(Traced([](TraceWriter& t) { t.OnSetProperty(1, "N", {}); }), std::logic_error);
  EXPECT_THROW(Traced([](TraceWriter& t) { t.OnHostText(BoundaryCall::Commit, ""); }),
               std::logic_error);
}

}  // namespace
}  // namespace strake::platform
