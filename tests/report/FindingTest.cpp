// Findings: their names, and the order in which a report has them.
#include "report/Finding.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>
#include <vector>

namespace strake::tests {
namespace {

using report::Finding;
using report::FindingCode;
using report::Severity;

TEST(Finding, HasSeveritiesByName) {
  for (const auto& [severity, name] :
       std::vector<std::pair<Severity, std::string>>{{Severity::Info, "info"},
                                                     {Severity::Warning, "warning"},
                                                     {Severity::Critical, "critical"}}) {
    EXPECT_EQ(report::SeverityName(severity), name);
    EXPECT_EQ(report::FindSeverity(name), severity);
  }
  for (const std::string unknown : {"", "Info", "error", "critical "}) {
    EXPECT_EQ(report::FindSeverity(unknown), std::nullopt) << unknown;
  }
}

TEST(Finding, HasACodeForPrograms) {
  const std::vector<std::pair<FindingCode, std::string>> codes = {
      {FindingCode::NoSp, "no-sp"},
      {FindingCode::SpSilent, "sp-silent"},
      {FindingCode::NotCommunicating, "not-communicating"},
      {FindingCode::MachineUnknown, "machine-unknown"},
      {FindingCode::Held, "held"},
      {FindingCode::ListLength, "list-length"},
      {FindingCode::CommandUnanswered, "command-unanswered"},
      {FindingCode::SensorUnanswered, "sensor-unanswered"},
      {FindingCode::Limit, "limit"},
      {FindingCode::EqualKeys, "equal-keys"},
      {FindingCode::Partial, "partial"},
  };
  ASSERT_EQ(codes.size(), report::kFindingCodes);
  for (const auto& [code, name] : codes) {
    EXPECT_EQ(report::CodeName(code), name);
  }
}

TEST(Finding, StandsBehindAllGraverOnesAndElseWhereItCame) {
  const report::Limits limits = {
      {.upperWarning = report::Bound{5, "5"}, .upperCritical = report::Bound{8, "8"}}};
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "A", 6, 65, 0), Sensor(1, "B", 9, 65, 0), Sensor(1, "C", 1, 65, 0),
                     Sensor(1, "C", 1, 65, 0), Sensor(1, "D", 7, 65, 0)},
       .findings = {{Severity::Info, FindingCode::CommandUnanswered, 1, "first"},
                    {Severity::Critical, FindingCode::SpSilent, 2, "second"},
                    {Severity::Warning, FindingCode::Partial, {}, "third"},
                    {Severity::Info, FindingCode::Held, {}, "fourth"}}},
      report::Secrets::Masked, limits);
  const std::vector<Finding> expected = {
      {Severity::Critical, FindingCode::SpSilent, 2, "second"},
      {Severity::Critical, FindingCode::Limit, 1, "B is 9 %, above 8 %"},
      {Severity::Warning, FindingCode::Partial, {}, "third"},
      {Severity::Warning,
       FindingCode::EqualKeys,
       {},
       "2 instances of VELKSG_SP_NumericSensor have equal keys: "
       "CreationClassName=VELKSG_SP_NumericSensor, SourceNode=1, DeviceID=C-Node1"},
      {Severity::Warning, FindingCode::Limit, 1, "A is 6 %, above 5 %"},
      {Severity::Warning, FindingCode::Limit, 1, "D is 7 %, above 5 %"},
      {Severity::Info, FindingCode::CommandUnanswered, 1, "first"},
      {Severity::Info, FindingCode::Held, {}, "fourth"},
  };
  EXPECT_EQ(std::vector<Finding>(report.Findings().begin(), report.Findings().end()), expected);
}

}  // namespace
}  // namespace strake::tests
