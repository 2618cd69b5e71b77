// Formats for programs, read back: they say what the JSON report says.
#include "report/CimXmlReport.h"
#include "report/CsvReport.h"
#include "report/JsonReport.h"
#include "report/MofReport.h"
#include "tests/report/Instances.h"
#include "tests/report/RandomInstances.h"
#include "tests/support/Places.h"
#include "tests/support/ReadBack.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Tool.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace strake::tests {
namespace {

using report::Report;

// One that was asked for the class of one of its instances, if there are any.
Report RandomReport(std::mt19937& random) {
  report::Collected collected{.facts = SomeFacts(), .instances = RandomInstances(random)};
  for (std::size_t count = random() % 4; count > 0; --count) {
    collected.instances.push_back(RandomSensor(random));
  }
  if (!collected.instances.empty()) {
    collected.facts.classes = {collected.instances[random() % collected.instances.size()].schema};
  }
  return Report(std::move(collected), report::Secrets::Shown, RandomLimits(random));
}

void ExpectAllSayTheSame(const Report& report) {
  const auto instances = ReadJsonInstances(Written(report::WriteJson, report));
  EXPECT_EQ(ReadMof(Written(report::WriteMof, report)).instances.dump(), instances.dump());
  EXPECT_EQ(ReadCimXml(Written(report::WriteCimXml, report)).dump(), AsXmlHolds(instances).dump());
}

TEST(ReadBack, IsTheSameOfAllFormatsForHostileTextsInEveryProperty) {
  for (const std::string& text : HostileTexts()) {
    SCOPED_TRACE(text);
    report::CollectionFacts facts = SomeFacts();
    facts.server = {text, text, "orlo"};
    facts.version = text;
    ExpectAllSayTheSame(ReportOf(OneOfEachClass(text), facts, report::Secrets::Shown));
  }
}

TEST(ReadBack, IsTheSameOfAllFormatsForAThousandRandomCollections) {
  std::mt19937 random(20240319);
  for (int round = 0; round < 1000; ++round) {
    ExpectAllSayTheSame(RandomReport(random));
    ASSERT_FALSE(HasFailure()) << "round " << round;
  }
}

TEST(ReadBack, OfCsvByPythonIsWhatTheJsonReportSaysOfAThousandRandomCollections) {
  const TemporaryFolder folder;
  std::mt19937 random(20240320);
  for (int round = 0; round < 1000; ++round) {
    const Report report = RandomReport(random);
    const std::string name = std::to_string(round);
    static_cast<void>(folder.Write(name + ".json", Written(report::WriteJson, report)));
    const auto& classes = report.Facts().classes;
    const std::string_view asked = classes.empty() ? "none" : classes.front()->name;
    static_cast<void>(
        folder.Write(name + '.' + std::string(asked) + ".csv", Written(report::WriteCsv, report)));
  }
  const ToolEnd end =
      RunTool(Python(), InShellQuotes(SourceFolder() + "/tests/report/check_csv.py") + ' ' +
                            InShellQuotes(folder.Path()));
  EXPECT_EQ(end, (ToolEnd{0, "1000 tables are as their reports say\n"}));
}

TEST(ReadBack, FindsXmlThatIsValid) {
  const TemporaryFolder folder;
  std::mt19937 random(20240321);
  for (int round = 0; round < 200; ++round) {
    static_cast<void>(folder.Write(std::to_string(round) + ".xml",
                                   Written(report::WriteCimXml, RandomReport(random))));
  }
  std::string validate = "--noout --dtdvalid ";
  validate += InShellQuotes(SourceFolder() + "/tests/report/cim-xml.dtd") + ' ';
  EXPECT_EQ(RunTool(XmlLint(), validate + InShellQuotes(folder.Path()) + "/*.xml"),
            (ToolEnd{0, ""}));
  const std::string wrong = folder.Write("wrong.xml",
                                         "<?xml version=\"1.0\"?>\n<CIM CIMVERSION=\"2.0\" "
                                         "DTDVERSION=\"2.0\"><DECLARATION/></CIM>\n");
  EXPECT_NE(RunTool(XmlLint(), validate + InShellQuotes(wrong)).status, 0);
}

}  // namespace
}  // namespace strake::tests
