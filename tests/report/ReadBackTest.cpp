// Formats for programs, read back: they say what the JSON report says.
#include "report/CimXmlReport.h"
#include "report/JsonReport.h"
#include "report/MofReport.h"
#include "tests/report/Instances.h"
#include "tests/report/RandomReport.h"
#include "tests/support/ReadBack.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace strake::tests {
namespace {

using report::Report;

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

}  // namespace
}  // namespace strake::tests
