// What changed from one collection to another, and how it is told.
#include "compare/DiffReport.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using Instances = std::vector<cim::StoredInstance>;
using std::chrono::seconds;

report::ReadReport At(seconds time, Instances instances) {
  return {"rack7", SomeFacts().collectedAt + time, std::move(instances)};
}

std::vector<compare::Difference> CompareReports(const report::ReadReport& before,
                                                const report::ReadReport& after, double tolerance) {
  return compare::Compare(compare::CollectionOf(before), compare::CollectionOf(after), tolerance);
}

// The differences alone, without what the table says around them.
std::string DiffOf(const report::ReadReport& before, const report::ReadReport& after,
                   double tolerance) {
  std::string out;
  compare::WriteDiffTable({.before = {"a.json", &before},
                           .after = {"b.json", &after},
                           .differences = CompareReports(before, after, tolerance),
                           .version = "1.2.3"},
                          [&out](std::string_view text) { out += text; });
  const std::string head =
      "From rack7 of 2024-03-18T09:41:07Z (a.json)\nto   rack7 of 2024-03-18T09:41:07Z "
      "(b.json)\n\n";
  EXPECT_EQ(out.substr(0, head.size()), head);
  return out.substr(head.size());
}

std::string Diff(const Instances& before, const Instances& after, double tolerance = 0) {
  return DiffOf(At({}, before), At({}, after), tolerance);
}

std::string Json(const Instances& before, const Instances& after) {
  const report::ReadReport one = At({}, before);
  const report::ReadReport other = At(seconds(5), after);
  std::string out;
  compare::WriteDiffJson({.before = {"a.json", &one},
                          .after = {"b.json", &other},
                          .differences = CompareReports(one, other, 0),
                          .version = "1.2.3"},
                         [&out](std::string_view text) { out += text; });
  return out;
}

cim::StoredInstance Interface(std::uint8_t node, const std::string& name, const std::string& host) {
  return Instance("VELKSG_ServProc_IPProtocolEndpoint",
                  {{"SourceNode", Node(node)}, {"Name", name}, {"HostName", host}});
}

cim::StoredInstance DialOut(const char* number, const std::string& password) {
  return Instance("VELKSG_ServProc_DialProtocolEndpoint1",
                  {{"SourceNode", Node(1)}, {"Instance", number}, {"DialoutPassword", password}});
}

cim::StoredInstance Clock(const char* time) {
  return Instance("VELKSG_SP_ComputerSystem",
                  {{"SourceNode", Node(1)}, {"SPClock", cim::DateTime(time)}});
}

constexpr const char* kNone = "No differences.\n";

TEST(Comparison, FindsNoneBetweenEqualCollectionsInAnyOrder) {
  const auto one = Interface(1, "x", "a");
  const auto other = Sensor(1, "Fan", 3, 65, 0);
  EXPECT_EQ(Diff({}, {}), kNone);
  EXPECT_EQ(Diff({one, other}, {one, other}), kNone);
  EXPECT_EQ(Diff({one, other}, {other, one}), kNone);
}

TEST(Comparison, TellsWhatWasAddedRemovedAndChanged) {
  EXPECT_EQ(Diff({Interface(1, "x", "a"), Sensor(2, "Fan\x1b", 3, 65, 0)},
                 {Interface(2, "y", "a"), Interface(1, "x", "b\n")}),
            "~ Network interface (VELKSG_ServProc_IPProtocolEndpoint) on SP 1\n"
            "    Host name  a -> b\\n\n"
            "- Fan\\x1B (VELKSG_SP_NumericSensor) on SP 2\n"
            "+ Network interface (VELKSG_ServProc_IPProtocolEndpoint) on SP 2\n"
            "\n1 added, 1 removed, 1 changed\n");
}

TEST(Comparison, TellsOfPropertiesThatOneOfThemLacks) {
  const auto bare = Instance("VELKSG_ServProc_IPProtocolEndpoint",
                             {{"SourceNode", Node(1)}, {"Name", "x"}, {"Enabled", ""}});
  EXPECT_EQ(Diff({Interface(1, "x", "a")}, {bare}),
            "~ Network interface (VELKSG_ServProc_IPProtocolEndpoint) on SP 1\n"
            "    State      (not set) -> (empty)\n"
            "    Host name  a -> (not set)\n"
            "\n0 added, 0 removed, 1 changed\n");
}

TEST(Comparison, PairsInstancesOfEqualKeysInTheirOrder) {
  const auto fan = [](int reading) { return Sensor(1, "Fan", reading, 65, 0); };
  const std::string title = " Fan (VELKSG_SP_NumericSensor) on SP 1\n";
  EXPECT_EQ(Diff({fan(1), fan(2)}, {fan(1), fan(2)}), kNone);
  EXPECT_EQ(
      Diff({fan(1), fan(2)}, {fan(1), fan(3), fan(4)}),
      "~" + title + "    Reading  2 % -> 3 %\n+" + title + "\n1 added, 0 removed, 1 changed\n");
  EXPECT_EQ(Diff({fan(1), fan(2)}, {fan(1)}), "-" + title + "\n0 added, 1 removed, 0 changed\n");
}

TEST(Comparison, LeavesReadingsWithinTheToleranceOut) {
  const struct {
    int before;
    int after;
    int modifierAfter;
    double tolerance;
    bool isDifference;
  } cases[] = {
      {500, 500, -2, 0, false},    {500, 501, -2, 0, true},   {500, 525, -2, 5, false},
      {500, 526, -2, 5, true},     {500, 475, -2, 5, false},  {500, 474, -2, 5, true},
      {-500, -525, -2, 5, false},  {-500, -526, -2, 5, true}, {0, 0, -2, 0, false},
      {0, 1, -2, 50, true},        {500, 5000, -3, 0, false}, {500, -500, -2, 100, true},
      {500, 1000, -2, 100, false}, {500, 5251, -3, 5, true},
  };
  for (const auto& one : cases) {
    const std::string diff = Diff({Sensor(1, "V", one.before, 5, -2)},
                                  {Sensor(1, "V", one.after, 5, one.modifierAfter)}, one.tolerance);
    EXPECT_EQ(diff != kNone, one.isDifference)
        << one.before << " to " << one.after << " at " << one.tolerance << ": " << diff;
  }
}

TEST(Comparison, TellsOfAReadingThatCameOrWent) {
  auto silent = Sensor(1, "V", 1, 5, 0);
  std::erase_if(silent.properties, [](const cim::StoredProperty& property) {
    return property.schema->name == "CurrentReading";
  });
  EXPECT_EQ(Diff({Sensor(1, "V", 1, 5, 0)}, {silent}, 1000),
            "~ V (VELKSG_SP_NumericSensor) on SP 1\n    Reading  1 V -> no reading V\n"
            "\n0 added, 0 removed, 1 changed\n");
  // The tolerance is about the reading alone.
  EXPECT_EQ(Diff({Sensor(1, "V", 1, 5, 0)}, {Sensor(1, "V", 1, 2, 0)}, 1000),
            "~ V (VELKSG_SP_NumericSensor) on SP 1\n    Reading  1 V -> 1 °C\n"
            "\n0 added, 0 removed, 1 changed\n");
}

TEST(Comparison, TakesAClockThatWentOnForTheSame) {
  const struct {
    const char* before;
    const char* after;
    int elapsed;
    bool isDifference;
  } cases[] = {
      {"20100615134530.000000-120", "20100615134530.000000-120", 0, false},
      {"20100615134530.000000-120", "20100615134530.000000-120", 9999, false},
      {"20100615134530.000000-120", "20100615134630.000000-120", 0, false},
      {"20100615134530.000000-120", "20100615134631.000000-120", 0, true},
      {"20100615134530.000000-120", "20100616134530.000000-120", 86400, false},
      {"20100615134530.000000-120", "20100616134629.000000-120", 86400, false},
      {"20100615134530.000000-120", "20100616134429.000000-120", 86400, true},
      // Another time zone, the same moment.
      {"20100615134530.000000-120", "20100615154530.000000+000", 0, false},
      {"20100615134530.000000-120", "20100615134530.000000+000", 0, true},
  };
  for (const auto& one : cases) {
    const report::ReadReport before = At({}, {Clock(one.before)});
    const report::ReadReport after = At(seconds(one.elapsed), {Clock(one.after)});
    EXPECT_EQ(!CompareReports(before, after, 0).empty(), one.isDifference)
        << one.before << " to " << one.after;
  }
}

TEST(Comparison, TellsThatASecretDiffersAndNeverShowsIt) {
  const struct {
    std::string before;
    std::string after;
  } cases[] = {{"hunter2", "hunter3"}, {"********", "hunter3"}, {"hunter2", ""}};
  for (const auto& one : cases) {
    EXPECT_EQ(Diff({DialOut("1", one.before)}, {DialOut("1", one.after)}),
              "~ Dial-out entry 1 (VELKSG_ServProc_DialProtocolEndpoint1) on SP 1\n"
              "    Password  differs, masked\n\n0 added, 0 removed, 1 changed\n");
    const std::string json = Json({DialOut("1", one.before)}, {DialOut("1", one.after)});
    EXPECT_NE(json.find("\"properties\":{\"DialoutPassword\":{\"masked\":true}}"),
              std::string::npos);
    EXPECT_EQ(json.find("hunter"), std::string::npos);
  }
  EXPECT_EQ(Diff({DialOut("1", "********")}, {DialOut("1", "********")}), kNone);
  EXPECT_EQ(Diff({}, {DialOut("1", "hunter2")}).find("hunter"), std::string::npos);
  EXPECT_EQ(Json({}, {DialOut("1", "hunter2")}).find("hunter"), std::string::npos);
}

TEST(Comparison, IsJsonForPrograms) {
  EXPECT_EQ(Json({Interface(1, "x", "a"), DialOut("2", "")}, {Interface(1, "x", "\xFF\n")}),
            "{\n  \"format\": \"strake-diff/1\",\n  \"strake\": \"1.2.3\",\n"
            "  \"before\": {\"file\":\"a.json\",\"server\":\"rack7\","
            "\"collected_at\":\"2024-03-18T09:41:07Z\"},\n"
            "  \"after\": {\"file\":\"b.json\",\"server\":\"rack7\","
            "\"collected_at\":\"2024-03-18T09:41:12Z\"},\n  \"differences\": [\n"
            "    {\"change\":\"changed\",\"class\":\"VELKSG_ServProc_IPProtocolEndpoint\","
            "\"keys\":{\"SourceNode\":1,\"Name\":\"x\"},"
            "\"properties\":{\"HostName\":{\"before\":\"a\",\"after\":\"\\\\xFF\\n\"}}},\n"
            "    {\"change\":\"removed\",\"class\":\"VELKSG_ServProc_DialProtocolEndpoint1\","
            "\"keys\":{\"SourceNode\":1,\"Instance\":\"2\"}}\n  ]\n}\n");
  EXPECT_NE(Json({}, {}).find("\"differences\": []\n}\n"), std::string::npos);
}

}  // namespace
}  // namespace strake::tests
