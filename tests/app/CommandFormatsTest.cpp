// The formats for other programs, as the command writes them.
#include "cim/Catalogue.h"
#include "tests/app/Command.h"
#include "tests/support/ReadBack.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string Collected(const std::string& format, const std::vector<std::string>& words) {
  std::vector<std::string> all = {"collect", "--quiet", "--log-level", "0", "--format", format};
  all.insert(all.end(), words.begin(), words.end());
  const Outcome outcome = Strake(all);
  EXPECT_EQ(outcome.status, 0) << outcome;
  EXPECT_EQ(outcome.err, "");
  return outcome.out;
}

TEST(CommandFormats, SayOfTheDemonstrationWhatTheJsonReportSays) {
  const auto instances = ReadJsonInstances(Collected("json", {}));
  ASSERT_FALSE(instances.empty());
  EXPECT_EQ(ReadMof(Collected("mof", {})).instances.dump(), instances.dump());
  EXPECT_EQ(ReadCimXml(Collected("cimxml", {})).dump(), AsXmlHolds(instances).dump());
}

TEST(CommandFormats, HaveARowForEachInstanceOfTheClassThatWasAskedFor) {
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    const std::vector<std::string> asked = {"--class", std::string(schema.shortName)};
    const auto rows = ReadCsv(Collected("csv", asked));
    const auto instances = ReadJsonInstances(Collected("json", asked));
    EXPECT_FALSE(instances.empty()) << schema.name;
    EXPECT_EQ(rows.size(), instances.size() + 1) << schema.name;
    EXPECT_EQ(rows.front().front(), schema.properties.front().name);
  }
}

}  // namespace
}  // namespace strake::tests
