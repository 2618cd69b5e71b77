// What a watch tells of whole collections, made by the plug-in itself.
#include "tests/findings/WatchCases.h"
#include "tests/support/Places.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace strake::tests {
namespace {

using report::FindingCode;

std::vector<WatchCase> AllCases() {
  std::vector<WatchCase> all = OrloCases();
  all.insert(all.end(), TavitCases().begin(), TavitCases().end());
  return all;
}

class CollectionWatchCase : public testing::TestWithParam<WatchCase> {};

TEST_P(CollectionWatchCase, TellsExactlyWhatDidNotAnswer) {
  const report::Collected collected = Watched(GetParam().server, GetParam().queries);
  EXPECT_EQ(FindingLines(collected), GetParam().findings);
  EXPECT_EQ(ProcessorLines(collected), GetParam().processors);
  EXPECT_EQ(SilentLines(collected), GetParam().silentSensors);
}

INSTANTIATE_TEST_SUITE_P(Orlo, CollectionWatchCase, testing::ValuesIn(OrloCases()));
INSTANTIATE_TEST_SUITE_P(Tavit, CollectionWatchCase, testing::ValuesIn(TavitCases()));

TEST(CollectionWatch, TellsEveryCodeThatIsItsOwn) {
  std::set<FindingCode> told;
  for (const WatchCase& one : AllCases()) {
    for (const report::Finding& finding : Watched(one.server, one.queries).findings) {
      told.insert(finding.code);
    }
  }
  std::set<FindingCode> own;
  for (int code = 0; code < report::kFindingCodes; ++code) own.insert(FindingCode(code));
  for (const auto code : {FindingCode::Limit, FindingCode::EqualKeys, FindingCode::Partial}) {
    own.erase(code);
  }
  EXPECT_EQ(told, own);
}

// "1 voltage NAME" of every sensor that the case's queries publish.
Lines PublishedSensors(const WatchCase& one) {
  Identifiers() = SharedIdentifiers{};
  platform::HostSession session(one.server, nullptr);
  session.Attach(&StrakeModuleEntry);
  for (const Classes& classes : one.queries) session.Query(classes);
  Lines published;
  for (const cim::StoredInstance& instance : session.Namespace()->TakeCommitted()) {
    if (report::IsSensor(instance)) {
      const report::Sensor sensor = report::SensorOf(instance);
      published.push_back(std::to_string(sensor.sp.value()) + " " +
                          std::string(report::KindName(sensor.kind)) + " " + sensor.name);
    }
  }
  session.Detach();
  return published;
}

TEST(CollectionWatch, CountsNoPublishedSensorAsSilent) {
  for (const WatchCase& one : AllCases()) {
    const Lines published = PublishedSensors(one);
    for (const std::string& silent : one.silentSensors) {
      EXPECT_EQ(std::ranges::count(published, silent), 0) << one.name << ": " << silent;
    }
  }
}

TEST(CollectionWatch, LeavesOutNoSensorOfAnSpThatAnswers) {
  for (const WatchCase& one : OrloCases()) {
    if (std::ranges::find(one.queries, kSensors) != one.queries.end()) {
      const Lines published = PublishedSensors(one);
      std::set<std::string> sensors(published.begin(), published.end());
      sensors.insert(one.silentSensors.begin(), one.silentSensors.end());
      const auto answered = std::ranges::count_if(
          one.processors, [](const std::string& line) { return line.ends_with(" answered"); });
      EXPECT_EQ(std::ssize(sensors), 42 * answered) << one.name;
    }
  }
}

TEST(CollectionWatch, AddsToFindingsAndReplacesTheRest) {
  findings::CollectionWatch watch;
  Watch(watch, Scenario::Orlo().server, {kComputer});
  report::Collected collected;
  collected.findings.push_back({});
  collected.processors.push_back({7, report::Answer::Yes});
  collected.silentSensors.push_back({7, "x", report::SensorKind::Fan});
  watch.AddTo(collected);
  ASSERT_EQ(collected.findings.size(), 2U);
  EXPECT_EQ(collected.findings[0], report::Finding{});
  EXPECT_EQ(collected.findings[1].text, "1 of 1 commands to SP 1 had no reply: SP clock");
  EXPECT_EQ(ProcessorLines(collected), kOneAnswered);
  EXPECT_EQ(SilentLines(collected), Lines{});
}

TEST(CollectionWatch, TellsOfEveryServerOfTheTree) {
  const std::map<std::string, Lines> expected = {
      {"demo-orlo",
       {"warning sensor-unanswered 1: 5 of 42 sensors on SP 1 did not answer: Planar Voltage -5v, "
        "CPU 3 temperature, CPU 4 temperature, DASD Sensor 2 Temperature, Fan 16 speed",
        "warning sensor-unanswered 2: 6 of 42 sensors on SP 2 did not answer: Planar Voltage "
        "+1.5v, VRM 02, I/O Area temperature, DASD Sensor 1 Temperature, Fan 08 speed and 1 more",
        "warning command-unanswered 2: 20 of 48 commands to SP 2 had no reply: DHCP values of "
        "interface 1 (9 times), network interface 2, DHCP values of interface 2 (9 times), "
        "dial-in last login 2"}},
      {"demo-tavit", {}},
      {"orlo-silent", {"critical sp-silent 1: SP 1 did not answer its presence test"}},
      {"tavit-blade", {}},
      {"tavit-held",
       {"warning held 1: the management server held the Tavit processor, so its sensors were not "
        "read"}},
      {"tavit-pilkar", {}},
      {"tavit-tessil", {}},
  };
  std::map<std::string, Lines> told;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(SourceFolder()) / "servers")) {
    const std::string name = entry.path().filename().string();
    told[name.substr(0, name.find('.'))] =
        FindingLines(Watched(platform::ReadServerDescription(entry), WholeCollectionQueries()));
  }
  EXPECT_EQ(told, expected);
}

}  // namespace
}  // namespace strake::tests
