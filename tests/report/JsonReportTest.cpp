// The report for programs.
#include "report/JsonReport.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string WithInstances(const std::string& lines) {
  return "{\n  \"format\": \"strake-report/1\",\n"
         "  \"server\": {\"name\": \"rack7\", \"description\": \"\", \"kind\": \"orlo\"},\n"
         "  \"instances\": [" +
         lines + "]\n}\n";
}

TEST(JsonReport, WithoutInstancesHasAnEmptyArray) {
  EXPECT_EQ(report::JsonReport(ReportOf({})), WithInstances(""));
}

TEST(JsonReport, KeepsCommitOrderPropertyOrderAndTypes) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(2, "Fan", -3, 65, -2),
      Instance("VELKSG_SP_ComputerSystem",
               {{"SourceNode", Node(255)}, {"Name", "SRV1:Node0"}, {"SPClock", SomeTime()}}),
  };
  EXPECT_EQ(
      report::JsonReport(ReportOf(instances)),
      WithInstances("\n    {\"class\": \"VELKSG_SP_NumericSensor\", \"properties\": "
                    "{\"CreationClassName\": \"VELKSG_SP_NumericSensor\", \"SourceNode\": 2, "
                    "\"SensorDescription\": \"Fan\", \"CurrentReading\": -3, \"BaseUnits\": 65, "
                    "\"UnitModifier\": -2}},"
                    "\n    {\"class\": \"VELKSG_SP_ComputerSystem\", \"properties\": "
                    "{\"SourceNode\": 255, \"Name\": \"SRV1:Node0\", "
                    "\"SPClock\": \"20100615134530.000000-120\"}}\n  "));
}

TEST(JsonReport, WritesTextAsValidJsonAndBytesThatAreNoUtf8AsHexadecimal) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("C", {{"A", "\"\\/\n\t\x01\x1f\x7f"}, {"B", "\xC3\xA9\xFF\xC3"}})};
  EXPECT_EQ(report::JsonReport(ReportOf(instances)),
            WithInstances("\n    {\"class\": \"C\", \"properties\": {"
                          "\"A\": \"\\\"\\\\/\\n\\u0009\\u0001\\u001f\x7f\", "
                          "\"B\": \"\xC3\xA9\\\\xFF\\\\xC3\"}}\n  "));
}

TEST(JsonReport, SaysWhichServerItIsOf) {
  report::Report report = ReportOf({});
  for (const std::string kind : {"orlo", "tavit", "both", "none"}) {
    report.server = {"a\"b", "two\nlines", kind};
    EXPECT_EQ(
        report::JsonReport(report),
        "{\n  \"format\": \"strake-report/1\",\n"
        "  \"server\": {\"name\": \"a\\\"b\", \"description\": \"two\\nlines\", \"kind\": \"" +
            kind + "\"},\n  \"instances\": []\n}\n");
  }
}

TEST(JsonReport, MasksPasswordsPinsAndCommunityNamesUnlessAskedNotTo) {
  const std::vector<cim::StoredInstance> instances = {Instance("C", {{"DialoutPassword", "a"},
                                                                     {"PPPPassword", ""},
                                                                     {"PagerPIN", "c"},
                                                                     {"Community1Name", "d"},
                                                                     {"Community2Name", "e"},
                                                                     {"Community3Name", "f"},
                                                                     {"Community1IP1", "g"},
                                                                     {"DialoutID", "h"},
                                                                     {"PPPLoginID", "i"}})};
  report::Report report = ReportOf(instances);
  EXPECT_EQ(report::JsonReport(report),
            WithInstances("\n    {\"class\": \"C\", \"properties\": {"
                          "\"DialoutPassword\": \"********\", \"PPPPassword\": \"********\", "
                          "\"PagerPIN\": \"********\", \"Community1Name\": \"********\", "
                          "\"Community2Name\": \"********\", \"Community3Name\": \"********\", "
                          "\"Community1IP1\": \"g\", \"DialoutID\": \"h\", "
                          "\"PPPLoginID\": \"i\"}}\n  "));
  report.showSecrets = true;
  EXPECT_EQ(report::JsonReport(report),
            WithInstances("\n    {\"class\": \"C\", \"properties\": {"
                          "\"DialoutPassword\": \"a\", \"PPPPassword\": \"\", "
                          "\"PagerPIN\": \"c\", \"Community1Name\": \"d\", "
                          "\"Community2Name\": \"e\", \"Community3Name\": \"f\", "
                          "\"Community1IP1\": \"g\", \"DialoutID\": \"h\", "
                          "\"PPPLoginID\": \"i\"}}\n  "));
}

}  // namespace
}  // namespace strake::tests
