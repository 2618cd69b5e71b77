// How reports are arranged for people.
#include "report/HtmlReport.h"
#include "report/ProcessorParts.h"
#include "report/TableReport.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>
#include <sstream>

namespace strake::tests {
namespace {

using report::Answer;
using report::FindingCode;
using report::SensorKind;
using report::SensorOrder;
using report::Severity;

// "1 answered: 2 instances, 1 sensors, 0 findings".
std::vector<std::string> Lines(const report::Report& report) {
  std::vector<std::string> lines;
  for (const report::ProcessorPart& part : report::PartsOf(report, SensorOrder::AsCollected)) {
    std::ostringstream line;
    line << (part.number ? std::to_string(*part.number) : "none") << ' '
         << report::AnswerText(part.answer) << ": " << part.instances.size() << " instances, "
         << part.sensors.size() << " sensors, " << part.findings.size() << " findings";
    lines.push_back(line.str());
  }
  return lines;
}

report::Report Mixed() {
  return report::Report(
      {.facts = SomeFacts(),
       .instances = {Instance("VELKSG_SP_ComputerSystem", {}), Sensor(9, "A", 1, 5, 0),
                     Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", Node(2)}}),
                     Sensor(2, "B", 1, 5, 0), Sensor(2, "C", 1, 2, 0)},
       .processors = {{1, Answer::No}, {2, Answer::Yes}, {3, Answer::NotAsked}},
       .silentSensors = {{7, "D", SensorKind::Fan}},
       .findings = {{Severity::Info, FindingCode::Partial, 1, "first"},
                    {Severity::Critical, FindingCode::Partial, 1, "second"},
                    {Severity::Critical, FindingCode::NoSp, 8, "of one that is not there"},
                    {Severity::Critical, FindingCode::NoSp, std::nullopt, "of none"}}},
      report::Secrets::Masked);
}

TEST(ProcessorParts, AreThoseThatWereFoundOrThatSomethingCameFromAndTheRestBehindThem) {
  EXPECT_EQ(Lines(Mixed()),
            (std::vector<std::string>{"1 did not answer: 0 instances, 0 sensors, 2 findings",
                                      "2 answered: 1 instances, 2 sensors, 0 findings",
                                      "3 not asked: 0 instances, 0 sensors, 0 findings",
                                      "7 answered: 0 instances, 1 sensors, 0 findings",
                                      "9 answered: 0 instances, 1 sensors, 0 findings",
                                      "none answered: 1 instances, 0 sensors, 0 findings"}));
}

TEST(ProcessorParts, HaveTheGravestFindingFirst) {
  const report::Report report = Mixed();
  const auto parts = report::PartsOf(report, SensorOrder::AsCollected);
  EXPECT_EQ(parts[0].findings[0]->text, "second");
  EXPECT_EQ(parts[0].findings[1]->text, "first");
}

TEST(ProcessorParts, AreCountedAlikeByTableAndPage) {
  const report::Report report = Mixed();
  const auto parts = report::PartsOf(report, SensorOrder::AsCollected);
  EXPECT_EQ(report::CountNumbered(parts), 5U);
  EXPECT_EQ(report::CountNumbered(parts, Answer::Yes), 3U);
  EXPECT_EQ(report::CountNumbered(parts, Answer::No), 1U);
  EXPECT_EQ(report::CountNumbered(parts, Answer::NotAsked), 1U);
  EXPECT_TRUE(Written(report::WriteTable, report)
                  .ends_with("1 of 5 service processors did not answer\n"
                             "1 of 1 sensor on SP 7 did not answer\n"
                             "5 instances, 1 query, 5 service processors\n"));
  EXPECT_NE(
      Written(report::WriteHtml, report).find("<dd>5 <small>3 answered, 1 not asked</small></dd>"),
      std::string::npos);
}

// A host can bring a catalogue of its own.
TEST(ProcessorParts, OrderClassesByNameWhereverTheyLie) {
  std::vector<cim::SchemaClass> own(cim::SchemaClasses().rbegin(), cim::SchemaClasses().rend());
  report::Collected collected;
  for (const cim::SchemaClass& schema : own) {
    if (schema.group != cim::QueryGroup::Sensors) {
      collected.instances.push_back({&schema, 0, {}});
    }
  }
  const report::Report report(std::move(collected), report::Secrets::Masked);
  const auto parts = report::PartsOf(report, SensorOrder::AsCollected);
  std::vector<std::string_view> names;
  for (const cim::StoredInstance* const instance : parts.at(0).instances) {
    names.push_back(instance->schema->name);
  }
  std::vector<std::string_view> expected;
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    if (schema.group != cim::QueryGroup::Sensors) {
      expected.push_back(schema.name);
    }
  }
  EXPECT_EQ(names, expected);
}

TEST(ProcessorParts, HaveTheirSensorsByKind) {
  const report::Report report = Mixed();
  const auto parts = report::PartsOf(report, SensorOrder::AsCollected);
  const auto namesOf = [&parts](SensorKind kind) {
    std::string names;
    for (const report::Sensor* const sensor : parts[1].SensorsOf(kind)) names += sensor->name;
    return names;
  };
  EXPECT_EQ(namesOf(SensorKind::Temperature), "C");
  EXPECT_EQ(namesOf(SensorKind::Voltage), "B");
  EXPECT_EQ(namesOf(SensorKind::Fan), "");
}

}  // namespace
}  // namespace strake::tests
