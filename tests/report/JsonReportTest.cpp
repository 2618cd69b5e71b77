// The report for programs.
#include "report/JsonReport.h"
#include "tests/report/Instances.h"
#include "tests/report/RandomInstances.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

std::string JsonOf(const report::Report& report) { return Written(report::WriteJson, report); }

std::string With(const std::string& findings, const std::string& instances) {
  return "{\n  \"format\": \"strake-report/1\",\n  \"strake\": \"1.2.3\",\n"
         "  \"collected_at\": \"2024-03-18T09:41:07Z\",\n"
         "  \"server\": {\"name\":\"rack7\",\"description\":\"\",\"kind\":\"orlo\"},\n"
         "  \"findings\": [" +
         findings + "],\n  \"instances\": [" + instances + "]\n}\n";
}

std::string WithInstances(const std::string& lines) { return With("", lines); }

// What a program reads of a report of one text.
std::string ReadBack(const std::string& text) {
  const std::string json =
      JsonOf(ReportOf({Instance("VELKSG_SP_ComputerSystem", {{"Name", text}})}));
  return ordered_json::parse(json).at("instances").at(0).at("properties").at("Name");
}

TEST(JsonReport, WithoutInstancesHasAnEmptyArray) {
  EXPECT_EQ(JsonOf(ReportOf({})), WithInstances(""));
}

TEST(JsonReport, KeepsCommitOrderPropertyOrderAndTypes) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(2, "Fan", -3, 65, -2),
      Instance("VELKSG_SP_ComputerSystem",
               {{"SourceNode", Node(255)}, {"Name", "SRV1:Node0"}, {"SPClock", SomeTime()}}),
  };
  EXPECT_EQ(JsonOf(ReportOf(instances)),
            WithInstances("\n    {\"class\":\"VELKSG_SP_NumericSensor\",\"properties\":"
                          "{\"CreationClassName\":\"VELKSG_SP_NumericSensor\",\"SourceNode\":2,"
                          "\"DeviceID\":\"Fan-Node2\",\"SensorDescription\":\"Fan\","
                          "\"CurrentReading\":-3,\"BaseUnits\":65,"
                          "\"UnitModifier\":-2},\"reading\":-0.03,\"unit\":\"%\"},"
                          "\n    {\"class\":\"VELKSG_SP_ComputerSystem\",\"properties\":"
                          "{\"SourceNode\":255,\"Name\":\"SRV1:Node0\","
                          "\"SPClock\":\"20100615134530.000000-120\"}}\n  "));
}

TEST(JsonReport, WritesTextAsValidJsonAndBytesThatAreNoUtf8AsHexadecimal) {
  const std::vector<cim::StoredInstance> instances = {Instance(
      "VELKSG_ServProc_IPProtocolEndpoint2",
      {{"SystemLocation", "\"\\/\n\t\x01\x1f\x7f"}, {"SystemContact", "\xC3\xA9\xFF\xC3"}})};
  EXPECT_EQ(
      JsonOf(ReportOf(instances)),
      WithInstances("\n    {\"class\":\"VELKSG_ServProc_IPProtocolEndpoint2\",\"properties\":{"
                    "\"SystemLocation\":\"\\\"\\\\/\\n\\t\\u0001\\u001f\\u007F\","
                    "\"SystemContact\":\"\xC3\xA9\\\\xFF\\\\xC3\"}}\n  "));
}

TEST(JsonReport, OnOneLineIsTheSameObject) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(2, "Fan", -3, 65, -2),
      Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", Node(255)}})};
  EXPECT_EQ(
      Written(report::WriteJsonLine, ReportOf(instances)),
      R"({"format":"strake-report/1","strake":"1.2.3","collected_at":"2024-03-18T09:41:07Z",)"
      R"("server":{"name":"rack7","description":"","kind":"orlo"},"findings":[],"instances":[)"
      R"({"class":"VELKSG_SP_NumericSensor","properties":{"CreationClassName":)"
      R"("VELKSG_SP_NumericSensor","SourceNode":2,"DeviceID":"Fan-Node2","SensorDescription":)"
      R"("Fan","CurrentReading":-3,"BaseUnits":65,"UnitModifier":-2},"reading":-0.03,)"
      R"("unit":"%"},{"class":"VELKSG_SP_ComputerSystem","properties":{"SourceNode":255}}]})"
      "\n");
  for (const std::string& text : HostileTexts()) {
    report::CollectionFacts facts = SomeFacts();
    facts.server = {text, text, text};
    const auto report = ReportOf(OneOfEachClass(text), facts);
    const std::string line = Written(report::WriteJsonLine, report);
    EXPECT_TRUE(report::IsJsonReportLine(line)) << line;
    EXPECT_EQ(ordered_json::parse(line), ordered_json::parse(JsonOf(report)));
  }
}

TEST(JsonReport, OnOneLineIsNothingElse) {
  const std::string line = Written(report::WriteJsonLine, ReportOf({}));
  EXPECT_TRUE(report::IsJsonReportLine(line));
  const std::string cut = line.substr(0, line.size() - 1);
  for (const std::string& other :
       {std::string(), std::string("\n"), cut, line + line, "x" + line, cut + "x\n", line + "x",
        cut.substr(0, cut.size() - 1) + "\n", JsonOf(ReportOf({})), std::string("{}\n"),
        report::JsonFailureLine({"rack7", "1.2.3", "it failed"})}) {
    EXPECT_FALSE(report::IsJsonReportLine(other)) << other;
  }
}

TEST(JsonReport, HasALineInItsPlaceWhereThereIsNone) {
  EXPECT_EQ(report::JsonFailureLine({"rack7", "1.2.3", "two\nlines \"\xFF\xC2\x9B"}),
            "{\"format\":\"strake-error/1\",\"strake\":\"1.2.3\",\"server\":{\"name\":\"rack7\"},"
            "\"error\":\"two\\nlines \\\"\\\\xFF\\u009B\"}\n");
}

TEST(JsonReport, SaysWhichServerItIsOf) {
  report::CollectionFacts facts = SomeFacts();
  for (const std::string kind : {"orlo", "tavit", "both", "none"}) {
    facts.server = {"a\"b\xFF", "two\nlines\xC2\x9B", kind};
    const std::string json = JsonOf(ReportOf({}, facts));
    EXPECT_NE(json.find("\n  \"server\": {\"name\":\"a\\\"b\\\\xFF\",\"description\":"
                        "\"two\\nlines\\u009B\",\"kind\":\"" +
                        kind + "\"},\n"),
              std::string::npos)
        << json;
  }
}

TEST(JsonReport, MasksPasswordsPinsAndCommunityNamesUnlessAskedNotTo) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_ServProc_DialProtocolEndpoint1", {{"DialoutID", "a"},
                                                         {"DialoutPassword", "b"},
                                                         {"PagerPIN", "c"},
                                                         {"PPPLoginID", "d"},
                                                         {"PPPPassword", ""}}),
      Instance("VELKSG_ServProc_IPProtocolEndpoint2", {{"Community1Name", "e"},
                                                       {"Community1IP1", "f"},
                                                       {"Community2Name", "g"},
                                                       {"Community3Name", ""}})};
  const auto lines = [](const std::vector<std::string>& secrets) {
    return WithInstances(
        "\n    {\"class\":\"VELKSG_ServProc_DialProtocolEndpoint1\",\"properties\":{"
        "\"DialoutID\":\"a\",\"DialoutPassword\":\"" +
        secrets[0] + "\",\"PagerPIN\":\"" + secrets[1] +
        "\",\"PPPLoginID\":\"d\",\"PPPPassword\":\"\"}},"
        "\n    {\"class\":\"VELKSG_ServProc_IPProtocolEndpoint2\",\"properties\":{"
        "\"Community1Name\":\"" +
        secrets[2] + "\",\"Community1IP1\":\"f\",\"Community2Name\":\"" + secrets[3] +
        "\",\"Community3Name\":\"\"}}\n  ");
  };
  EXPECT_EQ(JsonOf(ReportOf(instances)), lines({"********", "********", "********", "********"}));
  EXPECT_EQ(JsonOf(ReportOf(instances, SomeFacts(), report::Secrets::Shown)),
            lines({"b", "c", "e", "g"}));
}

TEST(JsonReport, GivesHostileTextsBackAsTheyWere) {
  for (const std::string& text : HostileTexts()) {
    EXPECT_EQ(ReadBack(text), text);
  }
}

TEST(JsonReport, GivesBytesOfEveryKindBackAsValidUtf8) {
  for (int first = 0; first < 256; ++first) {
    for (int second = 0; second < 256; second += 51) {
      const std::string text{static_cast<char>(first), static_cast<char>(second)};
      ASSERT_EQ(ReadBack(text), text::ToValidUtf8(text)) << first << ' ' << second;
    }
  }
}

// Beside the class and the properties; the reading as a double keeps it.
void ExpectSameSensor(const ordered_json& read, const report::Sensor* sensor) {
  if (sensor == nullptr) {
    EXPECT_EQ(read.size(), 2U);
    return;
  }
  const std::optional<double> reading = report::ReadingValue(*sensor);
  const bool hasReading = reading && std::isfinite(*reading);
  EXPECT_EQ(read.size(), 3U + (hasReading ? 1U : 0U) + (sensor->state ? 1U : 0U));
  EXPECT_EQ(read.at("unit"), sensor->unit);
  if (hasReading) {
    EXPECT_EQ(read.at("reading").get<double>(), *reading);
  }
  if (sensor->state) {
    EXPECT_EQ(read.at("state"), report::StateName(*sensor->state));
  }
}

void ExpectSame(const ordered_json& read, const cim::StoredInstance& instance) {
  EXPECT_EQ(read.at("class"), instance.schema->name);
  ASSERT_EQ(read.at("properties").size(), instance.properties.size());
  auto property = instance.properties.begin();
  for (const auto& [name, value] : read.at("properties").items()) {
    EXPECT_EQ(name, property->schema->name);
    if (const auto* const text = std::get_if<std::string>(&property->value)) {
      EXPECT_EQ(value, text::ToValidUtf8(*text));
    } else if (property->schema->type == cim::CimType::DateTime) {
      EXPECT_EQ(value, cim::ToText(property->value));
    } else {
      EXPECT_TRUE(value.is_number_integer());
      EXPECT_EQ(value.dump(), cim::ToText(property->value));
    }
    ++property;
  }
}

void ExpectSame(const ordered_json& read, const report::Finding& finding) {
  EXPECT_EQ(read.at("severity"), report::SeverityName(finding.severity));
  EXPECT_EQ(read.at("code"), report::CodeName(finding.code));
  EXPECT_EQ(read.at("text"), text::ToValidUtf8(finding.text));
  EXPECT_EQ(read.value("sp", 0), finding.sp.value_or(0));
  EXPECT_EQ(read.size(), finding.sp ? 4U : 3U);
}

std::vector<report::Finding> RandomFindings(std::mt19937& random) {
  std::vector<report::Finding> findings(random() % 4);
  for (report::Finding& finding : findings) {
    finding.severity = static_cast<report::Severity>(random() % 3);
    finding.code = static_cast<report::FindingCode>(random() % report::kFindingCodes);
    if (random() % 2 == 0) {
      finding.sp = static_cast<int>(1 + random() % 254);
    }
    finding.text = RandomText(random);
  }
  return findings;
}

TEST(JsonReport, HoldsEverythingOfAThousandRandomCollections) {
  std::mt19937 random(20240318);
  std::array<int, 3> states{};
  for (int round = 0; round < 1000; ++round) {
    auto instances = RandomInstances(random);
    for (std::size_t count = random() % 4; count > 0; --count) {
      instances.push_back(RandomSensor(random));
    }
    const report::Report report({.facts = SomeFacts(),
                                 .instances = instances,
                                 .silentSensors = {{1, RandomText(random)}},
                                 .findings = RandomFindings(random)},
                                report::Secrets::Shown, RandomLimits(random));
    const auto read = ordered_json::parse(JsonOf(report));
    ASSERT_EQ(read.at("findings").size(), report.Findings().size());
    for (std::size_t i = 0; i < report.Findings().size(); ++i) {
      ExpectSame(read.at("findings")[i], report.Findings()[i]);
    }
    ASSERT_EQ(read.at("instances").size(), instances.size());
    for (std::size_t i = 0; i < instances.size(); ++i) {
      ExpectSame(read.at("instances")[i], instances[i]);
      const report::Sensor* const sensor = report.FindSensor(report.Instances()[i]);
      ExpectSameSensor(read.at("instances")[i], sensor);
      if (sensor != nullptr && sensor->state) {
        ++states.at(static_cast<std::size_t>(*sensor->state));
      }
    }
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
  EXPECT_GT(*std::ranges::min_element(states), 50);
}

TEST(JsonReport, WritesEveryDigitOfAReadingAndLeavesOutWhatNoDoubleHolds) {
  constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
  const struct {
    std::int32_t reading;
    std::int32_t modifier;
    std::string written;
  } cases[] = {
      {500, -2, "\"reading\":5.00,"},
      {-5, -2, "\"reading\":-0.05,"},
      {0, -2, "\"reading\":0.00,"},
      {4000, 0, "\"reading\":4000,"},
      {4, 3, "\"reading\":4000,"},
      {kHighest, -18, "\"reading\":0.000000002147483647,"},
      {kLowest, 18, "\"reading\":-2147483648000000000000000000,"},
      {7, 19, "\"reading\":7e19,"},
      {-7, -19, "\"reading\":-7e-19,"},
      {7, kLowest, "\"reading\":7e-2147483648,"},
      {0, kHighest, "\"reading\":0e2147483647,"},
      {1, 308, "\"reading\":1e308,"},
      {1, 309, ""},
      {7, kHighest, ""},
      {-7, kHighest, ""},
  };
  for (const auto& one : cases) {
    const std::string json = JsonOf(ReportOf({Sensor(1, "S", one.reading, 5, one.modifier)}));
    EXPECT_NE(json.find("\"UnitModifier\":" + std::to_string(one.modifier) + "}," + one.written +
                        "\"unit\":\"V\"}"),
              std::string::npos)
        << json;
    EXPECT_TRUE(ordered_json::accept(json)) << json;
  }
}

TEST(JsonReport, HasAUnitOfEverySensorAndAReadingOfThoseThatHaveOne) {
  const struct {
    Properties properties;
    std::string written;
  } cases[] = {
      {{}, R"({},"unit":"")"},
      {{{"BaseUnits", Units(2)}}, R"({"BaseUnits":2},"unit":"°C")"},
      {{{"CurrentReading", 7}}, R"({"CurrentReading":7},"reading":7,"unit":"")"},
      {{{"CurrentReading", 7}, {"BaseUnits", Units(20)}},
       R"({"CurrentReading":7,"BaseUnits":20},"reading":7,"unit":"20")"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(JsonOf(ReportOf({Instance("VELKSG_SP_NumericSensor", one.properties)})),
              WithInstances("\n    {\"class\":\"VELKSG_SP_NumericSensor\",\"properties\":" +
                            one.written + "}\n  "));
  }
}

TEST(JsonReport, HasAStateOfEverySensorWithAReadingWhereLimitsWereGiven) {
  const report::Limits limits = {
      {.lowerWarning = report::Bound{5, "5"}, .upperCritical = report::Bound{9, "9.0"}}};
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "A", 5, 65, 0), Sensor(2, "B\"", 4, 65, 0),
                     Sensor(1, "C", 10, 65, 0),
                     Instance("VELKSG_SP_NumericSensor", {{"DeviceID", "D"}})},
       .silentSensors = {{1, "E", report::SensorKind::Fan}}},
      report::Secrets::Masked, limits);
  const auto read = ordered_json::parse(JsonOf(report));
  std::vector<std::string> states;
  for (const auto& instance : read.at("instances")) {
    states.push_back(instance.value("state", "none"));
  }
  EXPECT_EQ(states, (std::vector<std::string>{"ok", "warning", "critical", "none"}));
  EXPECT_EQ(read.at("findings").dump(),
            R"([{"severity":"critical","code":"limit","sp":1,"text":"C is 10 %, above 9.0 %"},)"
            R"({"severity":"warning","code":"limit","sp":2,"text":"B\" is 4 %, below 5 %"}])");
}

TEST(JsonReport, WritesFindingsALineEachAndTheirTextsLikeAllOthers) {
  const report::Report report(
      {.facts = SomeFacts(),
       .findings = {{report::Severity::Info, report::FindingCode::NoSp, {}, "none"},
                    {report::Severity::Critical, report::FindingCode::SpSilent, 2,
                     "\"\\\xFF\xC2\x9B\xE2\x80\xAE"}}},
      report::Secrets::Masked);
  EXPECT_EQ(JsonOf(report),
            With("\n    {\"severity\":\"critical\",\"code\":\"sp-silent\",\"sp\":2,"
                 "\"text\":\"\\\"\\\\\\\\xFF\\u009B\\u202E\"},"
                 "\n    {\"severity\":\"info\",\"code\":\"no-sp\",\"text\":\"none\"}\n  ",
                 ""));
}

}  // namespace
}  // namespace strake::tests
