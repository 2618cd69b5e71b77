// Formats for programs, read by other programs, which a shell starts.
#include "report/CimXmlReport.h"
#include "report/CsvReport.h"
#include "report/JsonReport.h"
#include "tests/report/RandomReport.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/Tool.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::Report;

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
