// What a report holds, and what it holds back.
#include "report/Report.h"
#include "report/Timestamp.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::Report;
using report::Secrets;

// The properties that hold something else than the text.
std::vector<std::string> ChangedIn(const Report& report, const std::string& text) {
  std::vector<std::string> changed;
  for (const cim::StoredInstance& instance : report.Instances()) {
    for (const cim::StoredProperty& property : instance.properties) {
      if (cim::ToText(property.value) != text) {
        EXPECT_EQ(cim::ToText(property.value), "********");
        changed.emplace_back(property.schema->name);
      }
    }
  }
  return changed;
}

TEST(Report, HoldsTheMaskInPlaceOfEverySecretAndOfNothingElse) {
  EXPECT_EQ(ChangedIn(ReportOf(OneOfEachClass("hunter2")), "hunter2"),
            (std::vector<std::string>{"Community1Name", "Community2Name", "Community3Name",
                                      "DialoutPassword", "PagerPIN", "PPPPassword"}));
}

TEST(Report, HoldsSecretsWhenItWasMadeToShowThem) {
  EXPECT_EQ(ChangedIn(ReportOf(OneOfEachClass("hunter2"), SomeFacts(), Secrets::Shown), "hunter2"),
            std::vector<std::string>{});
}

TEST(Report, LeavesAnEmptySecretEmpty) {
  EXPECT_EQ(ChangedIn(ReportOf(OneOfEachClass("")), ""), std::vector<std::string>{});
}

TEST(Report, OwnsWhatItHolds) {
  auto instances = std::make_unique<std::vector<cim::StoredInstance>>(
      std::vector{Instance("VELKSG_SP_ComputerSystem", {{"Name", std::string(100, 'a')}})});
  const Report report = ReportOf(*instances);
  instances.reset();
  EXPECT_EQ(cim::ToText(report.Instances()[0].properties[0].value), std::string(100, 'a'));
}

TEST(Report, FindsEqualKeysInWhichNoSecretCanStand) {
  std::vector<cim::StoredInstance> instances = OneOfEachClass("hunter2");
  const auto again = OneOfEachClass("hunter2");
  instances.insert(instances.end(), again.begin(), again.end());
  const Report report = ReportOf(instances);
  ASSERT_EQ(report.Findings().size(), 8U);
  EXPECT_EQ(
      report.Findings()[3],
      (report::Finding{report::Severity::Warning,
                       report::FindingCode::EqualKeys,
                       {},
                       "2 instances of VELKSG_ServProc_DialProtocolEndpoint1 have equal keys: "
                       "CreationClassName=hunter2, Name=hunter2, "
                       "SystemCreationClassName=hunter2, SystemName=hunter2, "
                       "Instance=hunter2"}));
  for (std::size_t i = 0; i < 8; ++i) {
    for (const cim::SchemaProperty& property : cim::SchemaClasses()[i].properties) {
      EXPECT_EQ(
          report.Findings()[i].text.find(std::string(property.name) + "=") != std::string::npos,
          property.role == cim::Role::Key && property.type == cim::CimType::String)
          << property.name;
    }
  }
}

TEST(Timestamp, IsRfc3339InUtc) {
  using namespace std::chrono;  // NOLINT(google-build-using-namespace)
  EXPECT_EQ(report::Timestamp(sys_seconds{}), "1970-01-01T00:00:00Z");
  EXPECT_EQ(report::Timestamp(sys_seconds(seconds(-1))), "1969-12-31T23:59:59Z");
  EXPECT_EQ(report::Timestamp(sys_seconds(seconds(1709210096))), "2024-02-29T12:34:56Z");
  EXPECT_EQ(report::Timestamp(sys_days(year(9999) / 12 / 31) + seconds(86399)),
            "9999-12-31T23:59:59Z");
  EXPECT_EQ(report::Timestamp(sys_days(year(1) / 1 / 2)), "0001-01-02T00:00:00Z");
}

}  // namespace
}  // namespace strake::tests
