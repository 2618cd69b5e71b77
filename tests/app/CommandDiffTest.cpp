// `strake diff` from outside.
#include "tests/app/Command.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

class CommandDiffTest : public testing::Test {
 protected:
  CommandDiffTest() {
    EXPECT_EQ(Strake({"collect", "--demo", "demo-tavit", "--output", fBefore}).status, 0);
    std::string report = ReadFile(fBefore);
    report.replace(report.find("\"CurrentReading\":1208"), 21, "\"CurrentReading\":1211");
    fAfter = fFolder.Write("after.json", report);
  }

  TemporaryFolder fFolder;
  std::string fBefore = fFolder / "before.json";
  std::string fAfter;
};

TEST_F(CommandDiffTest, EndsWithZeroWithoutDifferencesAndWithOneWithSome) {
  const Outcome same = Strake({"diff", fBefore, fBefore});
  EXPECT_EQ(same.status, 0);
  EXPECT_NE(same.out.find("\nNo differences.\n"), std::string::npos);
  const Outcome changed = Strake({"diff", fBefore, fAfter});
  EXPECT_EQ(changed.status, 1);
  EXPECT_EQ(changed.err, "");
  EXPECT_NE(changed.out.find("~ 12 Voltage (VELKSG_SP_NumericSensor) on SP 1\n"
                             "    Reading  12.08 V -> 12.11 V\n\n0 added, 0 removed, 1 changed\n"),
            std::string::npos)
      << changed.out;
  EXPECT_EQ(Strake({"diff", fBefore, fAfter, "--tolerance", "1"}).status, 0);
}

TEST_F(CommandDiffTest, ReadsOneOfThemFromStandardInputAndWritesToAFile) {
  const Outcome outcome =
      Command({"diff", fBefore, "-", "--format", "json", "--output", fFolder / "diff.json"})
          .StandardInput(fAfter)
          .Run();
  EXPECT_EQ(outcome, (Outcome{1, "", ""}));
  const std::string diff = ReadFile(fFolder / "diff.json");
  EXPECT_NE(diff.find("\"after\": {\"file\":\"standard input\",\"server\":\"demo-tavit\""),
            std::string::npos)
      << diff;
  EXPECT_NE(diff.find("{\"CurrentReading\":{\"before\":1208,\"after\":1211}}"), std::string::npos);
}

TEST_F(CommandDiffTest, RefusesWhatIsNoReportAndTouchesNothing) {
  const std::string old = fFolder.Write("diff", "old");
  const std::string broken = fFolder.Write("broken", "{");
  const struct {
    std::string after;
    std::string expected;
  } cases[] = {
      {fFolder / "none", (fFolder / "none") + ": cannot be read: No such file or directory\n"},
      {broken, broken + ": line 1, column 2: "},
      {fFolder.Write("other", "{\"format\":\"strake-diff/1\"}"),
       (fFolder / "other") + ": at /format: expected \"strake-report/1\", got \"strake-diff/1\"\n"},
  };
  for (const auto& one : cases) {
    const Outcome outcome = Strake({"diff", fBefore, one.after, "--output", old});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err.substr(0, 8 + one.expected.size()), "strake: " + one.expected);
    EXPECT_EQ(ReadFile(old), "old");
  }
}

}  // namespace
}  // namespace strake::tests
