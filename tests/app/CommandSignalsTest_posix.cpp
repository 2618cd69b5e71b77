// A run that a signal ends.
#include "tests/app/Command_posix.h"
#include "tests/support/TemporaryFolder.h"

#include <csignal>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;
using Words = std::vector<std::string>;

class CommandSignalsTest : public testing::Test {
 protected:
  TemporaryFolder fFolder;
  std::string fReport = fFolder.Write("report", "old");
  std::string fTrace = fFolder / "trace";
  std::string fLog = fFolder / "log";
};

TEST_F(CommandSignalsTest, KeepsItsTrailAndNothingElse) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
    const std::string name = "signal" + std::to_string(signal);
    const Outcome outcome = CollectHostile({"--query", "VELKSG_SP_ComputerSystem", "--query", name,
                                            "--output", fReport, "--trace", fTrace, "--log", fLog});
    EXPECT_EQ(outcome.status, -signal);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(ReadFile(fReport), "old");
    EXPECT_EQ(ReadFile(fLog), "[1] hello\\nsecond line\\x1B\n");
    const std::string trace = ReadFile(fTrace);
    EXPECT_EQ(trace.substr(trace.find("{\"event\":\"query_end\"")),
              "{\"event\":\"query_end\"}\n{\"event\":\"query\",\"classes\":[\"" + name +
                  "\"]}\n{\"event\":\"host\",\"call\":\"GetName\",\"result\":\"" + name + "\"}\n");
    EXPECT_EQ(ModeOf(fTrace), 0600U);
    EXPECT_EQ(ModeOf(fLog), 0600U);
    EXPECT_EQ(fFolder.Names(), (Names{"log", "report", "trace"}));
    fs::remove(fTrace);
    fs::remove(fLog);
  }
}

TEST_F(CommandSignalsTest, EndsWhileAServiceProcessorTakesItsTime) {
  const std::string server = fFolder.Write(
      "s", R"({"format": "strake-server/1", "sp": {"kind": "orlo", "latency_ms": 60000,
               "instances": [{"dot_commands": {}}]}})");
  const Outcome outcome =
      PosixCommand({"collect", "--server", server, "--class", "VELKSG_SP_ComputerSystem",
                    "--output", fReport, "--trace", fTrace, "--log-level", "4"})
          .RunUntil("[3] Strake plugin begin execution.\n", SIGINT);
  EXPECT_EQ(outcome.status, -SIGINT);
  EXPECT_EQ(ReadFile(fReport), "old");
  EXPECT_NE(ReadFile(fTrace).find("Strake plugin begin execution."), std::string::npos);
  EXPECT_EQ(fFolder.Names(), (Names{"report", "s", "trace"}));
}

TEST_F(CommandSignalsTest, GoesOnThroughASignalThatItsParentIgnores) {
  const Words words = {"collect",
                       "--plugin",
                       HostileModule(),
                       "--query",
                       "signal" + std::to_string(SIGHUP) + ",VELKSG_SP_ComputerSystem",
                       "--output",
                       fReport};
  // The query goes on with a class that the schema does not have.
  const Outcome outcome = PosixCommand(words).Ignoring(SIGHUP).Run();
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.err.find("query 1 ended with an exception"), std::string::npos);
  EXPECT_EQ(ReadFile(fReport), "old");
}

}  // namespace
}  // namespace strake::tests
