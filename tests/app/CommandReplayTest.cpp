// `strake replay` from outside.
#include "tests/app/Command.h"
#include "tests/support/MaskAddresses.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;

const std::string kTrace = R"({"event":"query","classes":["VELKSG_SP_ComputerSystem"]})"
                           "\n"
                           R"({"event":"host","call":"GetSystemName","result":"ATLAS7"})"
                           "\n"
                           R"({"event":"sp","call":"isDotcommand","result":false})"
                           "\n";

const std::string kDescription = R"({
  "format": "strake-server/1",
  "description": "Replay of field.trace",
  "capture": {
    "source": "the trace field.trace",
    "notes": [
      "replay it with: strake collect --server FILE --query VELKSG_SP_ComputerSystem"
    ]
  },
  "machine_type_model": "9999-AC1",
  "system_name": "ATLAS7",
  "sp": {
    "kind": "none"
  }
}
)";

class CommandReplayTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Trace(const std::string& server, const std::string& name) const {
    EXPECT_EQ(Strake({"collect", "--server", server, "--quiet", "--log-level", "0", "--trace",
                      fFolder / name, "--output", fFolder / "report"})
                  .status,
              0);
    return MaskAddresses(ReadFile(fFolder / name));
  }

  TemporaryFolder fFolder;
};

TEST_F(CommandReplayTest, WritesADescriptionWhoseTraceIsTheSame) {
  const std::string demo = SourceFolder() + "/servers/demo-orlo.server.json";
  const std::string trace = Trace(demo, "field.trace");
  const std::string description = fFolder / "field.server.json";
  const Outcome outcome = Strake({"replay", fFolder / "field.trace", "--output", description});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  const std::string beginning = description +
                                " is written; replay it with: strake collect"
                                " --server " +
                                description + " --query VELKSG_";
  EXPECT_EQ(outcome.out.substr(0, beginning.size()), beginning);
  EXPECT_EQ(Trace(description, "again.trace"), trace);
}

TEST_F(CommandReplayTest, WritesToStandardOutputAndReadsStandardInput) {
  const std::string trace = fFolder.Write("field.trace", kTrace);
  EXPECT_EQ(Strake({"replay", trace}), (Outcome{0, kDescription, ""}));
  EXPECT_EQ(Strake({"replay", trace, "--output", "-"}), (Outcome{0, kDescription, ""}));
  const Outcome piped = Command({"replay", "-"}).StandardInput(trace).Run();
  EXPECT_EQ(piped.status, 0);
  EXPECT_NE(piped.out.find("\"Replay of standard input\""), std::string::npos);
}

TEST_F(CommandReplayTest, ScrubsAnotherWayEveryTimeAndClosesNothing) {
  const std::string trace = fFolder.Write("field.trace", kTrace);
  const std::string output = fFolder / "field.server.json";
  EXPECT_EQ(Strake({"replay", trace, "--scrub", "--output", output}).status, 0);
  const std::string one = ReadFile(output);
  EXPECT_EQ(one.find("ATLAS7"), std::string::npos);
  EXPECT_EQ(one.find("field"), std::string::npos);
  EXPECT_EQ(Strake({"check", output}).status, 0);
  EXPECT_NE(Strake({"replay", trace, "--scrub"}).out, one);
}

TEST_F(CommandReplayTest, WarnsOfWhatADescriptionCannotSay) {
  const std::string trace =
      fFolder.Write("field.trace", kTrace + R"({"event":"sp","call":"isDotcommand","result":true})"
                                            "\n");
  const Outcome outcome = Strake({"replay", trace});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err,
            "strake: warning: isDotcommand did not always answer the same; its first answer "
            "stays\n");
}

TEST_F(CommandReplayTest, RefusesWhatItCannotReadAndTouchesNothing) {
  const std::string cut = fFolder.Write("cut.trace", kTrace + "{\"event\":\"sp\"");
  const std::string output = fFolder.Write("old", "old description");
  const std::string absent = fFolder / "absent";
  const struct {
    std::vector<std::string> words;
    std::string error;
  } cases[] = {
      {{"replay", cut},
       cut + ": line 4, column 14: syntax error while parsing object - unexpected end of input; "
             "expected '}'"},
      {{"replay", absent}, absent + ": cannot be read: No such file or directory"},
      {{"replay"}, "trace is required (see strake replay --help)"},
      {{"replay", ""}, "trace: the name of a file was expected (see strake replay --help)"},
      {{"replay", cut, "--scrubb"},
       "there is no option '--scrubb', did you mean '--scrub'? (see strake replay --help)"},
  };
  for (const auto& one : cases) {
    std::vector<std::string> words = one.words;
    words.insert(words.end(), {"--output", output});
    EXPECT_EQ(Strake(words), (Outcome{2, "", "strake: " + one.error + "\n"}));
    EXPECT_EQ(ReadFile(output), "old description");
  }
  EXPECT_EQ(Strake({"replay", cut, "--output", cut}),
            (Outcome{2, "", "strake: the trace and --output: both are the file " + cut + "\n"}));
}

}  // namespace
}  // namespace strake::tests
