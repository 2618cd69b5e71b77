// What is no line of a trace is refused, with its place.
#include "replay/ReplayBuilder.h"
#include "replay/TraceReader.h"
#include "text/InputError.h"

#include <gtest/gtest.h>
#include <string>

namespace strake::tests {
namespace {

std::string RefusalOf(const std::string& text) {
  try {
    replay::ReadTrace(text, "field.trace", [](const replay::TraceEvent&) {});
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "taken";
}

constexpr const char* kDot =
    R"({"event":"sp","call":"sendDotCommand","class":2,"id":"4.4.1","sp":0,"size":350,)"
    R"("result":true,"length":2,"reply":"0A1B"})";
constexpr const char* kKestle =
    R"({"event":"sp","call":"sendKestleCommand","total":7,"code":166,"expected":0,"checksum":90,)"
    R"("data_length":0,"ack":false,"read":true,"result":true,"length":0,"reply":""})";

TEST(TraceReader, TakesEveryLineThatATraceHas) {
  for (const std::string line : {
           R"({"event":"query","classes":[]})",
           R"({"classes":["A","\u00E9"],"event":"query"})",
           R"({"event":"query_end"})",
           R"({"event":"query_end","throws":""})",
           R"({"event":"log","level":-1,"message":"a\nb"})",
           R"({"event":"host","call":"GetMachineTypeFromID","result":""})",
           R"({"event":"host","call":"GetMachineTypeFromID","throws":"x"})",
           R"({"event":"host","call":"GetSystemName","throws":"x"})",
           R"({"event":"host","call":"GetSystemCreationClassName","result":"x"})",
           R"({"event":"host","call":"GetLocalTime"})",
           R"({"event":"host","call":"GetName","result":"x"})",
           R"({"event":"host","call":"GetClass","class":"x","found":false})",
           R"({"event":"host","call":"CreateInstance","class":"x","instance":1})",
           R"({"event":"host","call":"Commit","instance":2147483647})",
           R"({"event":"sp","call":"isDotcommand","result":true})",
           R"({"event":"sp","call":"isKestle","result":true})",
           R"({"event":"sp","call":"isQmvStop","result":true})",
           R"({"event":"sp","call":"isDornlibrary","result":true})",
           R"({"event":"sp","call":"checkSPComm","result":true})",
           R"({"event":"sp","call":"buildDotCommandList","result":true})",
           R"({"event":"sp","call":"discoverSPs","result":-2147483648})",
           R"({"event":"sp","call":"getComponentdotCmdList","id":"4.1.3.1.255","result":-1})",
           kDot,
           kKestle,
       }) {
    EXPECT_EQ(RefusalOf(line), "taken") << line;
    EXPECT_EQ(RefusalOf(line + "\n"), "taken") << line;
  }
  for (const std::string value :
       {R"("string","value":"")", R"("sint32","value":-7)", R"("uint16","value":65535)",
        R"("uint8","value":255)", R"("datetime","value":"20100615134530.000000-120")"}) {
    EXPECT_EQ(RefusalOf(R"({"event":"host","call":"SetProperty","instance":1,"name":"x","type":)" +
                        value + "}"),
              "taken")
        << value;
  }
}

std::string With(std::string line, const std::string& from, const std::string& to) {
  return line.replace(line.find(from), from.size(), to);
}

TEST(TraceReader, RefusesWhatIsNoLineOfATrace) {
  const std::string host = R"({"event":"host","call":)";
  const std::string property = host + R"("SetProperty","instance":1,"name":"x","type":)";
  const struct {
    std::string line;
    std::string refusal;
  } cases[] = {
      {"[]", ": at the top level: expected an object, got an array"},
      {"{}", R"(: at the top level: expected the key "event", got none)"},
      {R"({"event":7})", ": at /event: expected a string, got 7"},
      {R"({"event":"end"})",
       R"(: at /event: expected query, query_end, log, host or sp, got "end")"},
      {R"({"event":"query"})", R"(: at the top level: expected the key "classes", got none)"},
      {R"({"event":"query","classes":"x"})", R"(: at /classes: expected an array, got "x")"},
      {R"({"event":"query","classes":[7]})", ": at /classes/0: expected a string, got 7"},
      {R"({"event":"query","classes":[[7]]})",
       ": at /classes: expected at most 2 levels of"
       " nesting, got more"},
      {R"({"event":"query","classes":[],"at":1})",
       R"(: at the top level: expected no key but event, classes, got "at")"},
      {R"({"event":"query_end","throws":null})", ": at /throws: expected a string, got null"},
      {R"({"event":"log","level":1.5,"message":""})",
       ": at /level: expected an integer from -2147483648 to 2147483647, got 1.5"},
      {R"({"event":"log","level":1,"message":"\u0100"})",
       ": at /message: expected text of the characters U+0000 to U+00FF, one a byte, got"
       R"( "\xC4\x80")"},
      {host + R"("GetTime"})",
       ": at /call: expected GetMachineTypeFromID, GetSystemName, GetSystemCreationClassName,"
       " GetLocalTime, GetName, GetClass, CreateInstance, SetProperty or Commit, got"
       R"( "GetTime")"},
      {host + R"("GetSystemName","result":"a","throws":"b"})",
       R"(: at the top level: expected either "result" or "throws", got both)"},
      {host + R"("GetSystemName"})", R"(: at the top level: expected the key "result", got none)"},
      {host + R"("GetName","throws":"b"})",
       R"(: at the top level: expected no key but event, call, result, got "throws")"},
      {host + R"("GetClass","class":"x","found":1})", ": at /found: expected true or false, got 1"},
      {host + R"("Commit","instance":0})",
       ": at /instance: expected an integer from 1 to 2147483647, got 0"},
      {property + R"("real","value":1})",
       R"(: at /type: expected string, sint32, uint16, uint8 or datetime, got "real")"},
      {property + R"("uint8","value":256})",
       ": at /value: expected an integer from 0 to 255, got 256"},
      {property + R"("datetime","value":"2010"})",
       R"(: at /value: expected a date-time of 25 characters, got "2010")"},
      {R"({"event":"sp","call":"isOrlo","result":true})",
       ": at /call: expected isDotcommand, isKestle, isQmvStop, isDornlibrary, checkSPComm,"
       " buildDotCommandList, discoverSPs, getComponentdotCmdList, sendDotCommand or"
       R"( sendKestleCommand, got "isOrlo")"},
      {R"({"event":"sp","call":"discoverSPs","result":2147483648})",
       ": at /result: expected an integer from -2147483648 to 2147483647, got 2147483648"},
      {With(kDot, "4.4.1", "4.4.1."),
       R"(: at /id: expected an identifier in dot notation, such as 4.4.1, got "4.4.1.")"},
      {With(kDot, "\"sp\":0", "\"sp\":256"),
       ": at /sp: expected an integer from 0 to 255, got 256"},
      {With(kDot, "0A1B", "0A1"), R"(: at /reply: expected hexadecimal byte pairs, got "0A1")"},
      {With(kDot, ",\"reply\":\"0A1B\"", ""),
       R"(: at the top level: expected the key "reply", got none)"},
      {With(kKestle, "166", "-1"), ": at /code: expected an integer from 0 to 255, got -1"},
      {With(kKestle, "\"ack\":false", "\"ack\":0"), ": at /ack: expected true or false, got 0"},
      {R"({"event":"query","event":"query"})",
       R"(: at the top level: expected each key once, got "event" twice)"},
      {"{\"event\":\0}",
       ", column 10: syntax error while parsing value - unexpected end of"
       " input; expected '[', '{', or a literal"},
      {"",
       ", column 1: syntax error while parsing value - unexpected end of input; expected '[',"
       " '{', or a literal"},
      {std::string("{\"a\0\"}", 6), ", column 4: expected text, got a zero byte"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(R"({"event":"query_end"})"
                        "\n" +
                        one.line + "\n"),
              "field.trace: line 2" + one.refusal);
  }
}

TEST(TraceReader, RefusesATraceThatIsTooLong) {
  EXPECT_EQ(RefusalOf(std::string(replay::kMostTraceBytes + 1, ' ')),
            "field.trace: expected at most 67108864 bytes, got more");
}

TEST(ReplayBuilder, RefusesATraceWithoutAQueryThatLookedForServiceProcessors) {
  replay::ReplayBuilder builder;
  builder.Take(replay::QueryBegan{});
  try {
    static_cast<void>(builder.Complete("a/field.trace", "field.trace"));
    FAIL();
  } catch (const text::InputError& error) {
    EXPECT_STREQ(error.what(),
                 "a/field.trace: expected a trace of a query that looked for service processors,"
                 " got no answer of isDotcommand");
  }
}

}  // namespace
}  // namespace strake::tests
