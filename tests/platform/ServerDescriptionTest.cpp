#include "platform/server/ServerDescription.h"
#include "text/DotNotation.h"
#include "text/InputError.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

namespace strake::platform {
namespace {

ServerDescription Parse(const std::string& json) { return ParseServerDescription(json, "test"); }

std::string RefusalOf(const std::string& json) {
  try {
    Parse(json);
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "taken";
}

// A description with these members of "sp" beside its kind.
std::string WithSp(const std::string& members) {
  return R"({"format":"strake-server/1","sp":{"kind":"orlo",)" + members + "}}";
}

std::string WithRoot(const std::string& members) {
  return R"({"format":"strake-server/1",)" + members + R"(,"sp":{"kind":"orlo"}})";
}

Identifier Id(const std::string& dotNotation) {
  return text::ParseDotNotation(dotNotation).value();
}

TEST(ServerDescription, HasDefaultsForAllButFormatAndKind) {
  const ServerDescription server = Parse(R"({"format":"strake-server/1","sp":{"kind":"none"}})");
  EXPECT_EQ(server.description, "");
  EXPECT_EQ(server.host.machineTypeModel.text, "9999-AC1");
  EXPECT_FALSE(server.host.machineTypeModel.throws);
  EXPECT_EQ(server.host.systemName.text, "SRV1");
  EXPECT_FALSE(server.host.systemName.throws);
  EXPECT_EQ(server.host.systemCreationClassName, "CIM_ComputerSystem");
  EXPECT_FALSE(server.host.localTime);
  EXPECT_EQ(server.sp.kind, SpKind::None);
  EXPECT_TRUE(server.sp.communicates);
  EXPECT_EQ(server.sp.count, 0);
  EXPECT_TRUE(server.sp.managementServerStopped);
  EXPECT_FALSE(server.sp.dornLibrary);
  EXPECT_EQ(server.sp.latencyMs, 0);
  EXPECT_TRUE(server.sp.commandList);
  EXPECT_TRUE(server.sp.components.empty());
  EXPECT_TRUE(server.sp.instances.empty());
  EXPECT_TRUE(server.sp.kestleCommands.empty());
}

TEST(ServerDescription, IsReadKeyByKey) {
  const ServerDescription server = Parse(R"({
    "format": "strake-server/1",
    "description": "all keys",
    "machine_type_model": "5127-XYZ",
    "system_name": {"throws": "no name"},
    "system_creation_class_name": "X_System",
    "local_time": "20100615134530.000000-120",
    "sp": {
      "kind": "both",
      "communicates": false,
      "count": 300,
      "management_server_stopped": false,
      "dorn_library": true,
      "latency_ms": 1.5,
      "command_list": false,
      "components": {"4.1.3.1.255": 0, "4.1.4.9.255": 254},
      "instances": [{"dot_commands": {"4.4.1": "01", "4.4.2": ["02", "03"]}}, {}],
      "kestle_commands": {"0": "04", "255": "05"}
    }})");
  EXPECT_EQ(server.description, "all keys");
  EXPECT_EQ(server.host.machineTypeModel.text, "5127-XYZ");
  EXPECT_EQ(server.host.systemName.text, "no name");
  EXPECT_TRUE(server.host.systemName.throws);
  EXPECT_EQ(server.host.systemCreationClassName, "X_System");
  EXPECT_EQ(server.host.localTime.value().ToString(), "20100615134530.000000-120");
  EXPECT_EQ(server.sp.kind, SpKind::Both);
  EXPECT_FALSE(server.sp.communicates);
  EXPECT_EQ(server.sp.count, 300);
  EXPECT_FALSE(server.sp.managementServerStopped);
  EXPECT_TRUE(server.sp.dornLibrary);
  EXPECT_EQ(server.sp.latencyMs, 1.5);
  EXPECT_FALSE(server.sp.commandList);
  EXPECT_EQ(server.sp.components,
            (std::map<Identifier, int>{{Id("4.1.3.0.255"), 0}, {Id("4.1.4.0.255"), 254}}));
  ASSERT_EQ(server.sp.instances.size(), 2U);
  EXPECT_EQ(server.sp.instances[0].at(Id("4.4.1")).at(0).bytes, "\x01");
  EXPECT_EQ(server.sp.instances[0].at(Id("4.4.2")).size(), 2U);
  EXPECT_TRUE(server.sp.instances[1].empty());
  EXPECT_EQ(server.sp.kestleCommands.at(0).at(0).bytes, "\x04");
  EXPECT_EQ(server.sp.kestleCommands.at(255).at(0).bytes, "\x05");
}

TEST(ServerDescription, CountsItsInstancesUnlessToldOtherwise) {
  EXPECT_EQ(Parse(WithSp(R"("instances":[{},{},{}])")).sp.count, 3);
  EXPECT_EQ(Parse(WithSp(R"("instances":[{},{},{}],"count":-2147483648)")).sp.count,
            -2147483647 - 1);
  EXPECT_EQ(Parse(WithSp(R"("count":2147483647)")).sp.count, 2147483647);
}

TEST(ServerDescription, TakesLatenciesFromNoneToAMinute) {
  EXPECT_EQ(Parse(WithSp(R"("latency_ms":0)")).sp.latencyMs, 0);
  EXPECT_EQ(Parse(WithSp(R"("latency_ms":60000)")).sp.latencyMs, 60000);
  EXPECT_EQ(Parse(WithSp(R"("latency_ms":0.25)")).sp.latencyMs, 0.25);
}

TEST(ServerDescription, TakesAsManyComponentsAsTheListCanName) {
  const auto components = [](std::size_t count) {
    std::string members;
    for (std::size_t i = 0; i < count; ++i) {
      members += (i == 0 ? "\"" : ",\"") + std::to_string(i / 256) + '.' + std::to_string(i % 256) +
                 ".1.1.1\":1";
    }
    return WithSp(R"("components":{)" + members + "}");
  };
  EXPECT_EQ(Parse(components(kMostComponents)).sp.components.size(), kMostComponents);
  EXPECT_EQ(RefusalOf(components(kMostComponents + 1)),
            "test: at /sp/components: expected at most 800 components, got 801");
}

TEST(ServerDescription, IsRefusedWithThePlaceAndWhatWasExpected) {
  const char* const rootKeys =
      "format, description, machine_type_model, system_name, system_creation_class_name, "
      "local_time, capture, sp";
  const char* const spKeys =
      "kind, communicates, count, management_server_stopped, dorn_library, latency_ms, "
      "command_list, components, instances, kestle_commands";
  const std::string dateTime = "expected a date-time yyyymmddhhmmss.mmmmmmsutc, got ";
  const struct {
    std::string json;
    std::string message;
  } cases[] = {
      {"[]", "at the top level: expected an object, got an array"},
      {"7", "at the top level: expected an object, got 7"},
      {"{}", "at the top level: expected the key \"format\", got none"},
      {R"({"format":"strake-server/2","new":1})",
       R"(at /format: expected "strake-server/1", got "strake-server/2")"},
      {R"({"format":1})", "at /format: expected a string, got 1"},
      {R"({"format":"strake-server/1"})", "at the top level: expected the key \"sp\", got none"},
      {WithRoot(R"("Description":"x")"),
       "at the top level: expected no key but " + std::string(rootKeys) + ", got \"Description\""},
      {WithRoot(R"("\n\u00e9":"x")"), "at the top level: expected no key but " +
                                          std::string(rootKeys) + ", got \"\\x0A\\xC3\\xA9\""},
      {WithRoot(R"("description":null)"), "at /description: expected a string, got null"},
      {WithRoot(R"("machine_type_model":5127)"),
       "at /machine_type_model: expected a string or {\"throws\": TEXT}, got 5127"},
      {WithRoot(R"("machine_type_model":{})"),
       "at /machine_type_model: expected the key \"throws\", got none"},
      {WithRoot(R"("machine_type_model":{"throws":1})"),
       "at /machine_type_model/throws: expected a string, got 1"},
      {WithRoot(R"("system_name":{"throws":"a","b":1})"),
       "at /system_name: expected no key but throws, got \"b\""},
      {WithRoot(R"("system_creation_class_name":[])"),
       "at /system_creation_class_name: expected a string, got an array"},
      {WithRoot(R"("local_time":20100615)"), "at /local_time: expected a string, got 20100615"},
      {WithRoot(R"("local_time":"2010-06-15")"),
       "at /local_time: " + dateTime + "\"2010-06-15\" (not of this form)"},
      {WithRoot(R"("local_time":"20101315134530.000000-120")"),
       "at /local_time: " + dateTime + "\"20101315134530.000000-120\" (month 13 is not in 1..12)"},
      {R"({"format":"strake-server/1","sp":"orlo"})", R"(at /sp: expected an object, got "orlo")"},
      {R"({"format":"strake-server/1","sp":{}})", "at /sp: expected the key \"kind\", got none"},
      {R"({"format":"strake-server/1","sp":{"kind":"Orlo"}})",
       R"(at /sp/kind: expected "orlo", "tavit", "both" or "none", got "Orlo")"},
      {R"({"format":"strake-server/1","sp":{"kind":true}})",
       R"(at /sp/kind: expected "orlo", "tavit", "both" or "none", got true)"},
      {WithSp(R"("kinds":1)"),
       "at /sp: expected no key but " + std::string(spKeys) + ", got \"kinds\""},
      {WithSp(R"("communicates":"yes")"),
       R"(at /sp/communicates: expected true or false, got "yes")"},
      {WithSp(R"("management_server_stopped":0)"),
       "at /sp/management_server_stopped: expected true or false, got 0"},
      {WithSp(R"("dorn_library":null)"), "at /sp/dorn_library: expected true or false, got null"},
      {WithSp(R"("command_list":[])"), "at /sp/command_list: expected true or false, got an array"},
      {WithSp(R"("count":1.0)"),
       "at /sp/count: expected an integer from -2147483648 to 2147483647, got 1.0"},
      {WithSp(R"("count":2147483648)"),
       "at /sp/count: expected an integer from -2147483648 to 2147483647, got 2147483648"},
      {WithSp(R"("count":100000000000000000000)"),
       "at /sp/count: expected an integer from -2147483648 to 2147483647, got 1e+20"},
      {WithSp(R"("latency_ms":-0.5)"),
       "at /sp/latency_ms: expected a number from 0 to 60000, got -0.5"},
      {WithSp(R"("latency_ms":60000.5)"),
       "at /sp/latency_ms: expected a number from 0 to 60000, got 60000.5"},
      {WithSp(R"("latency_ms":"5")"),
       R"(at /sp/latency_ms: expected a number from 0 to 60000, got "5")"},
      {WithSp(R"("components":[])"), "at /sp/components: expected an object, got an array"},
      {WithSp(R"("components":{"4.1.3.1.255":255})"),
       "at /sp/components/4.1.3.1.255: expected an integer from 0 to 254, got 255"},
      {WithSp(R"("components":{"4.1.3.1.255":-1})"),
       "at /sp/components/4.1.3.1.255: expected an integer from 0 to 254, got -1"},
      {WithSp(R"("components":{"4.1.3.1.255":1.5})"),
       "at /sp/components/4.1.3.1.255: expected an integer from 0 to 254, got 1.5"},
      {WithSp(R"("components":{"4.1.3.1":1})"),
       "at /sp/components: expected component identifiers of five bytes in dot notation, got "
       "\"4.1.3.1\""},
      {WithSp(R"("components":{"4.1.3.01.255":1})"),
       "at /sp/components: expected component identifiers of five bytes in dot notation, got "
       "\"4.1.3.01.255\""},
      {WithSp(R"("components":{"4.1.3.1.255":1,"4.1.3.7.255":1})"),
       "at /sp/components: expected each component once, whatever its fourth byte, got "
       "\"4.1.3.7.255\" again"},
      {WithSp(R"("instances":{})"), "at /sp/instances: expected an array, got an object"},
      {WithSp(R"("instances":[{},7])"), "at /sp/instances/1: expected an object, got 7"},
      {WithSp(R"("instances":[{"commands":{}}])"),
       "at /sp/instances/0: expected no key but dot_commands, got \"commands\""},
      {WithSp(R"("instances":[{"dot_commands":[]}])"),
       "at /sp/instances/0/dot_commands: expected an object, got an array"},
      {WithSp(R"("instances":[{"dot_commands":{"4.4.1.":"00"}}])"),
       "at /sp/instances/0/dot_commands: expected commands in dot notation, such as 4.4.1, got "
       "\"4.4.1.\""},
      {WithSp(R"("instances":[{"dot_commands":{"4.256":"00"}}])"),
       "at /sp/instances/0/dot_commands: expected commands in dot notation, such as 4.4.1, got "
       "\"4.256\""},
      {WithSp(R"("instances":[{"dot_commands":{"":"00"}}])"),
       "at /sp/instances/0/dot_commands: expected commands in dot notation, such as 4.4.1, got "
       "\"\""},
      {WithSp(R"("instances":[{"dot_commands":{"4.4.1":["00",[]]}}])"),
       "at /sp/instances/0/dot_commands/4.4.1/1: expected a reply (a string or an object), got "
       "an array"},
      {WithSp(R"("kestle_commands":[])"),
       "at /sp/kestle_commands: expected an object, got an array"},
      {WithSp(R"("kestle_commands":{"0166":"00"})"),
       "at /sp/kestle_commands: expected command codes 0 to 255 in decimal, got \"0166\""},
      {WithSp(R"("kestle_commands":{"256":"00"})"),
       "at /sp/kestle_commands: expected command codes 0 to 255 in decimal, got \"256\""},
      {WithSp(R"("kestle_commands":{"A6":"00"})"),
       "at /sp/kestle_commands: expected command codes 0 to 255 in decimal, got \"A6\""},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(one.json), "test: " + one.message) << one.json;
  }
}

TEST(ServerDescription, IsRefusedWhenItIsNoJsonWithTheLine) {
  const struct {
    std::string text;
    const char* start;
  } cases[] = {
      {"", "test: line 1, column 1: syntax error while parsing value - unexpected end of input"},
      {"format", "test: line 1, column 2: syntax error while parsing value - invalid literal"},
      {"{\n  \"format\": 'x'}", "test: line 2, column 13: syntax error while parsing value"},
      {"{\n\n \"a\": 1,}", "test: line 3, column 9: syntax error while parsing object key"},
      {"{} {}", "test: line 1, column 4: syntax error while parsing value"},
      {"{\"a\": 01}", "test: line 1, column 8: syntax error while parsing object"},
      {"{\"a\": 1e999}", "test: line 1, column 11: number overflow"},
      {"{\"a\": \"\xff\"}", "test: line 1, column 8: syntax error while parsing value"},
      {"{\"a\": \"\xc3(\"}", "test: line 1, column 9: syntax error while parsing value"},
      {"{\"a\": \"x\ny\"}", "test: line 1, column 9: syntax error while parsing value"},
      {"{\"a\": \"\\ud800\"}", "test: line 1, column 14: syntax error while parsing value"},
      {"/* x */ {}", "test: line 1, column 1: syntax error while parsing value"},
      {std::string("{}\0", 3), "test: line 1, column 3: expected text, got a zero byte"},
      {std::string("{\n\"a\": \"\0\"}", 11),
       "test: line 2, column 7: expected text, got a zero byte"},
  };
  for (const auto& one : cases) {
    const std::string message = RefusalOf(one.text);
    EXPECT_TRUE(message.starts_with(one.start)) << message;
    EXPECT_TRUE(std::all_of(message.begin(), message.end(), [](char c) {
      return c >= 0x20 && c < 0x7F;
    })) << message;
    EXPECT_LT(message.size(), 400U);
  }
}

TEST(ServerDescription, KeepsALongTokenOutOfItsMessage) {
  const std::string message = RefusalOf("{\"a\": \"" + std::string(100000, '\x01'));
  EXPECT_LT(message.size(), 700U);
  EXPECT_LT(RefusalOf("{\"" + std::string(100000, 'k') + "\": 1}").size(), 700U);
}

TEST(ServerDescription, IsRefusedForADuplicateKeyAnywhere) {
  const struct {
    std::string json;
    const char* message;
  } cases[] = {
      {R"({"format":"a","format":"a"})",
       "test: at the top level: expected each key once, got \"format\" twice"},
      {WithSp(R"("count":1,"count":1)"),
       "test: at /sp: expected each key once, got \"count\" twice"},
      {WithSp(R"("instances":[{},{"dot_commands":{"4.4.1":"00","4.4.1":"01"}}])"),
       "test: at /sp/instances/1/dot_commands: expected each key once, got \"4.4.1\" twice"},
      {WithRoot(R"("a/b~c":{"x":[[{"y":1,"\u0079":2}]]})"),
       "test: at /a~1b~0c/x/0/0: expected each key once, got \"y\" twice"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(one.json), one.message);
  }
}

TEST(ServerDescription, IsRefusedWhenItIsNestedTooDeep) {
  const auto nested = [](int levels) {
    return std::string(static_cast<std::size_t>(levels), '[') +
           std::string(static_cast<std::size_t>(levels), ']');
  };
  EXPECT_EQ(RefusalOf(nested(64)), "test: at the top level: expected an object, got an array");
  std::string place;
  for (int level = 0; level < 63; ++level) {
    place += "/0";
  }
  EXPECT_EQ(RefusalOf(nested(65)),
            "test: at " + place + ": expected at most 64 levels of nesting, got more");
  EXPECT_EQ(RefusalOf(nested(100000)), RefusalOf(nested(65)));
  std::string objects;
  for (int level = 0; level < 65; ++level) {
    objects += R"({"a":)";
  }
  EXPECT_NE(RefusalOf(objects).find("expected at most 64 levels of nesting"), std::string::npos);
}

TEST(ServerDescription, IsRefusedWhenItHasTooManyValues) {
  // The text itself is one value, and so is the array.
  const auto zeros = [](std::size_t count) {
    std::string text = "[";
    for (std::size_t i = 0; i < count; ++i) {
      text += i == 0 ? "0" : ",0";
    }
    return "{\"a\":" + text + "]}";
  };
  EXPECT_EQ(RefusalOf(zeros(kMostDescriptionValues - 2)),
            "test: at the top level: expected the key \"format\", got none");
  EXPECT_EQ(RefusalOf(zeros(kMostDescriptionValues - 1)),
            "test: at /a: expected at most 400000 values in the whole text, got more");
}

TEST(ServerDescription, ShowsWhiteSpaceInAMessageAsBlanksButNamesItInAText) {
  const struct {
    const char* text;
    const char* end;
  } cases[] = {
      {"[\n\r\t x", "invalid literal; last read: '[    x'"},
      {"[\"\\\"\\\\\",\n\r\t x", "invalid literal; last read: '\"\\\"\\\\\",    x'"},
      {"[\"\\\"\n\"]",
       "control character U+000A (LF) must be escaped to \\u000A or \\n; last read: "
       "'\"\\\"<U+000A>'"},
  };
  for (const auto& one : cases) {
    EXPECT_TRUE(RefusalOf(one.text).ends_with(one.end)) << RefusalOf(one.text);
  }
}

TEST(ServerDescription, IsRefusedWhenItIsCutAtAnyByte) {
  const std::string whole =
      R"({"format":"strake-server/1","description":"é","local_time":"20100615134530.000000-120",)"
      R"("machine_type_model":{"throws":"x"},"sp":{"kind":"orlo","latency_ms":1.5e1,"count":-2,)"
      R"("components":{"4.1.3.1.255":2},"instances":[{"dot_commands":{"4.4.1":["0A","0B",)"
      R"({"elements":[{"id":1,"text":"\u00e9","max":3},{"data":"00"}]},{"hex":"00",)"
      R"("succeeds":false}]}}],"kestle_commands":{"166":{"text":"t"}}}})";
  EXPECT_EQ(RefusalOf(whole), "taken");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string message = RefusalOf(whole.substr(0, size));
    EXPECT_TRUE(message.starts_with("test: line 1, column ")) << size << ": " << message;
  }
}

TEST(ServerDescription, IsRefusedOverSixteenMebibytes) {
  // Broken at its start, so that the largest text costs nothing to read.
  std::string text = "!";
  text.resize(kMostDescriptionBytes, ' ');
  EXPECT_TRUE(RefusalOf(text).starts_with("test: line 1, column 1: "));
  text += ' ';
  EXPECT_EQ(RefusalOf(text), "test: expected at most 16777216 bytes, got more");
}

TEST(ServerDescription, NamesItsSourceOnOneLine) {
  try {
    ParseServerDescription("{}", "odd\nname\x1b.json");
    FAIL();
  } catch (const text::InputError& error) {
    EXPECT_STREQ(error.what(),
                 "odd\\nname\\x1B.json: at the top level: expected the key \"format\", got none");
  }
}

}  // namespace
}  // namespace strake::platform
