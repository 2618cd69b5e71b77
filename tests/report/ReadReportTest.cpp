// A report that is read back.
#include "report/JsonReport.h"
#include "report/ReadReport.h"
#include "report/Timestamp.h"
#include "tests/report/Instances.h"
#include "text/InputError.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const std::string kHead =
    R"({"format":"strake-report/1","collected_at":"2024-03-18T09:41:07Z","server":{"name":"r"},)";

std::string RefusalOf(const std::string& text) {
  try {
    static_cast<void>(report::ParseReport(text, "a.json"));
  } catch (const text::InputError& error) {
    return error.what();
  }
  return "no refusal";
}

std::string RefusalOfInstance(const std::string& instance) {
  return RefusalOf(kHead + "\"instances\":[" + instance + "]}");
}

TEST(ReadReport, HoldsWhatWasWritten) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(2, "Fan \xC3\xA9\n\x01", -3, 65, -2),
      Instance("VELKSG_SP_ComputerSystem", {{"SPClock", SomeTime()}}),
      Instance("VELKSG_ServProc_DialProtocolEndpoint4", {})};
  const report::ReadReport read =
      report::ParseReport(Written(report::WriteJson, ReportOf(instances)), "a.json");
  EXPECT_EQ(read.server, "rack7");
  EXPECT_EQ(read.collectedAt, SomeFacts().collectedAt);
  EXPECT_EQ(read.instances, instances);
}

TEST(ReadReport, TakesKeysThatWereAdded) {
  const std::string text = R"({"more":1,"format":"strake-report/1","server":{"name":"r","x":[]},
    "collected_at":"2024-03-18T09:41:07Z",
    "instances":[{"class":"VELKSG_SP_ComputerSystem","properties":{},"state":"ok"}]})";
  EXPECT_EQ(report::ParseReport(text, "a.json").instances.size(), 1U);
}

TEST(ReadReport, IsRefusedWithThePlaceAndWhatWasExpected) {
  const struct {
    std::string text;
    std::string expected;
  } cases[] = {
      {"[]", "at the top level: expected an object, got an array"},
      {"{}", "at the top level: expected the key \"format\", got none"},
      {R"({"format":"strake-server/1"})",
       "at /format: expected \"strake-report/1\", got \"strake-server/1\""},
      {R"({"format":"strake-report/1"})",
       "at the top level: expected the key \"server\", got none"},
      {R"({"format":"strake-report/1","server":{"name":"r"},"collected_at":"now"})",
       "at /collected_at: expected a time like \"2024-03-18T09:41:27Z\", got \"now\""},
      {kHead + "\"instances\":3}", "at /instances: expected an array, got 3"},
      {kHead + "\"instances\":[],\"format\":1}",
       "at the top level: expected each key once, got \"format\" twice"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOf(one.text), "a.json: " + one.expected);
  }
}

TEST(ReadReport, IsRefusedWhenTheCatalogueDoesNotHaveWhatItHolds) {
  const std::string system = R"({"class":"VELKSG_SP_ComputerSystem","properties":)";
  const struct {
    std::string instance;
    std::string expected;
  } cases[] = {
      {"1", "at /instances/0: expected an object, got 1"},
      {R"({"class":"X"})",
       "at /instances/0/class: expected a class that this version knows, got \"X\""},
      {system + R"({"X":1}})",
       "at /instances/0/properties/X: expected no property but those of VELKSG_SP_ComputerSystem, "
       "got 1"},
      {system + R"({"Name":1}})", "at /instances/0/properties/Name: expected a string, got 1"},
      {system + R"({"SourceNode":256}})",
       "at /instances/0/properties/SourceNode: expected an integer from 0 to 255, got 256"},
      {system + R"({"SPClock":"now"}})",
       "at /instances/0/properties/SPClock: expected the 25 characters of a date-time, got "
       "\"now\""},
      {R"({"class":"VELKSG_SP_NumericSensor","properties":{"CurrentReading":2147483648}})",
       "at /instances/0/properties/CurrentReading: expected an integer from -2147483648 to "
       "2147483647, got 2147483648"},
      {R"({"class":"VELKSG_SP_NumericSensor","properties":{"BaseUnits":-1}})",
       "at /instances/0/properties/BaseUnits: expected an integer from 0 to 65535, got -1"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(RefusalOfInstance(one.instance), "a.json: " + one.expected);
  }
}

TEST(Timestamp, IsReadBackAndNothingElseIs) {
  using namespace std::chrono;  // NOLINT(google-build-using-namespace)
  for (const std::string text :
       {"1970-01-01T00:00:00Z", "2024-02-29T12:34:56Z", "9999-12-31T23:59:59Z"}) {
    const auto moment = report::ParseTimestamp(text);
    ASSERT_TRUE(moment) << text;
    EXPECT_EQ(report::Timestamp(*moment), text);
  }
  for (const char* const text :
       {"", "2024-02-30T12:34:56Z", "2024-00-01T00:00:00Z", "2024-01-01T24:00:00Z",
        "2024-01-01T00:60:00Z", "2024-01-01T00:00:60Z", "2024-01-01 00:00:00Z",
        "2024-01-01T00:00:00+", "2024-01-01T00:00:00.0Z", "2O24-01-01T00:00:00Z"}) {
    EXPECT_EQ(report::ParseTimestamp(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace strake::tests
