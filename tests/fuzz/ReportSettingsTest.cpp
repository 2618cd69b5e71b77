// What the report harness varies beside the instances.
#include "fuzz/ReportSettings.h"

#include <gtest/gtest.h>
#include <set>

namespace strake::tests {
namespace {

fuzz::ReportSettings SettingsOf(unsigned char input) {
  return fuzz::SettingsOf({&input, 1}, fuzz::DecodeReport({}));
}

TEST(ReportSettings, ComeInEveryKindOverTheInputs) {
  std::set<report::SensorOrder> orders;
  std::set<std::size_t> columns;
  std::set<bool> headers;
  std::set<bool> limits;
  std::set<report::Answer> answers;
  std::set<report::SensorKind> kinds;
  std::set<report::FindingCode> codes;
  std::set<bool> ofProcessors;
  for (int input = 0; input < 256; ++input) {
    const auto settings = SettingsOf(static_cast<unsigned char>(input));
    orders.insert(settings.layout.order);
    columns.insert(settings.layout.columns);
    headers.insert(settings.layout.header);
    limits.insert(settings.limits.has_value());
    for (const report::Processor& one : settings.processors) answers.insert(one.answer);
    for (const report::SilentSensor& one : settings.silentSensors) kinds.insert(one.kind);
    for (const report::Finding& one : settings.findings) {
      codes.insert(one.code);
      ofProcessors.insert(one.sp.has_value());
    }
  }
  EXPECT_EQ(orders.size(), 4U);
  EXPECT_EQ(columns.size(), 5U);
  EXPECT_EQ(headers.size(), 2U);
  EXPECT_EQ(limits.size(), 2U);
  EXPECT_EQ(answers.size(), 3U);
  EXPECT_EQ(kinds.size(), std::size_t{report::kSensorKinds});
  EXPECT_EQ(codes.size(), std::size_t{report::kFindingCodes});
  EXPECT_EQ(ofProcessors.size(), 2U);
}

TEST(ReportSettings, AreTheSameForTheSameInput) {
  for (int input = 0; input < 256; ++input) {
    const auto one = SettingsOf(static_cast<unsigned char>(input));
    const auto other = SettingsOf(static_cast<unsigned char>(input));
    EXPECT_EQ(one.layout.order, other.layout.order);
    EXPECT_EQ(one.processors, other.processors);
    EXPECT_EQ(one.silentSensors, other.silentSensors);
    EXPECT_EQ(one.findings, other.findings);
  }
}

}  // namespace
}  // namespace strake::tests
