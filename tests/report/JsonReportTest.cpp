// The report for programs.
#include "report/JsonReport.h"
#include "tests/report/Instances.h"
#include "text/TextEscape.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <random>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

std::string JsonOf(const report::Report& report) { return Written(report::WriteJson, report); }

std::string WithInstances(const std::string& lines) {
  return "{\n  \"format\": \"strake-report/1\",\n  \"strake\": \"1.2.3\",\n"
         "  \"collected_at\": \"2024-03-18T09:41:07Z\",\n"
         "  \"server\": {\"name\":\"rack7\",\"description\":\"\",\"kind\":\"orlo\"},\n"
         "  \"instances\": [" +
         lines + "]\n}\n";
}

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
                          "\"UnitModifier\":-2}},"
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
  const std::string texts[] = {
      "",
      "\"},{\"class\":\"X\"",
      "\\u0041\\",
      "\\\"\\\\",
      std::string("\0", 1),
      "\x1b[31m\r\n\b\f",
      "\x7f\xC2\x80\xC2\x9F",
      "\xE2\x80\xAE\xE2\x81\xA6\xD8\x9C",
      "\xE2\x80\xA8\xE2\x80\xA9",
      "\xEF\xBB\xBF\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF",
      "</script><!--",
  };
  for (const std::string& text : texts) {
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

std::string RandomText(std::mt19937& random) {
  std::string text(random() % 40, '\0');
  for (char& byte : text) {
    byte = static_cast<char>(random());
  }
  return text;
}

cim::Value RandomValue(cim::CimType type, std::mt19937& random) {
  switch (type) {
    case cim::CimType::String:
      return RandomText(random);
    case cim::CimType::Sint32:
      return static_cast<std::int32_t>(random());
    case cim::CimType::Uint16:
      return static_cast<std::uint16_t>(random());
    case cim::CimType::Uint8:
      return static_cast<std::uint8_t>(random());
    case cim::CimType::DateTime:
      break;
  }
  return cim::DateTime("20100615134530.0000" + std::to_string(10 + random() % 90) + "-120");
}

std::vector<cim::StoredInstance> RandomInstances(std::mt19937& random) {
  std::vector<cim::StoredInstance> instances(random() % 6);
  for (cim::StoredInstance& instance : instances) {
    instance.schema = &cim::SchemaClasses()[random() % cim::SchemaClasses().size()];
    for (const cim::SchemaProperty& property : instance.schema->properties) {
      if (random() % 4 != 0) {
        instance.properties.push_back({&property, RandomValue(property.type, random)});
      }
    }
    std::shuffle(instance.properties.begin(), instance.properties.end(), random);
  }
  return instances;
}

void ExpectSame(const ordered_json& read, const cim::StoredInstance& instance) {
  EXPECT_EQ(read.size(), 2U);
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

TEST(JsonReport, HoldsEverythingOfAThousandRandomCollections) {
  std::mt19937 random(20240318);
  for (int round = 0; round < 1000; ++round) {
    const auto instances = RandomInstances(random);
    const std::string json = JsonOf(ReportOf(instances, SomeFacts(), report::Secrets::Shown));
    const auto read = ordered_json::parse(json).at("instances");
    ASSERT_EQ(read.size(), instances.size());
    for (std::size_t i = 0; i < instances.size(); ++i) {
      ExpectSame(read[i], instances[i]);
    }
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
}

}  // namespace
}  // namespace strake::tests
