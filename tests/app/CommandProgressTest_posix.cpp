// The progress of a long run, on a terminal.
#include "tests/app/Command_posix.h"
#include "tests/support/TemporaryFolder.h"

#include <future>
#include <gtest/gtest.h>
#include <iterator>

namespace strake::tests {
namespace {

constexpr const char* kErase = "\r\x1b[K";

class CommandProgressTest : public testing::Test {
 protected:
  // Two cards whose commands take their time. A query for nothing sends two
  // presence tests.
  static std::string Server(int latency) {
    return R"({"format": "strake-server/1", "sp": {"kind": "orlo", "latency_ms": )" +
           std::to_string(latency) +
           R"(, "instances": [{"dot_commands": {"1.1": "01"}}, {"dot_commands": {"1.1": "01"}}]}})";
  }

  [[nodiscard]] std::vector<std::string> Words(int latency) const {
    return {"collect", "--server", fFolder.Write("s", Server(latency)),
            "--query", "",         "--query",
            "",        "--format", "table"};
  }

  TemporaryFolder fFolder;
};

TEST_F(CommandProgressTest, IsShownAfterASecondAndErasedAtTheEnd) {
  const Outcome outcome =
      PosixCommand(Words(350)).Environment("TERM=xterm").RunWithErrorsOnTerminal();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, PosixCommand(Words(0)).Run().out);
  EXPECT_EQ(outcome.err.find(kErase + std::string("query 2 of 2, ")), 0U) << outcome.err;
  EXPECT_NE(outcome.err.find(
                kErase + std::string("query 2 of 2, service processor 1 of 2, 3 commands sent")),
            std::string::npos)
      << outcome.err;
  EXPECT_TRUE(outcome.err.ends_with("commands sent" + std::string(kErase))) << outcome.err;
}

TEST_F(CommandProgressTest, GivesWayToLogLines) {
  std::vector<std::string> words = Words(350);
  words.insert(words.end(), {"--log-level", "3"});
  const Outcome outcome = PosixCommand(words).Environment("TERM=xterm").RunWithErrorsOnTerminal();
  const std::string line = "commands sent" + std::string(kErase) + "[3] Checking dotCmd";
  EXPECT_NE(outcome.err.find(line), std::string::npos) << outcome.err;
  EXPECT_EQ(outcome.err.find("sent["), std::string::npos);
  EXPECT_TRUE(outcome.err.ends_with("\n") || outcome.err.ends_with(kErase)) << outcome.err;
}

TEST_F(CommandProgressTest, IsNotShownWhereItIsNotWantedOrCannotBeErased) {
  const std::vector<std::string> words = Words(300);
  std::vector<std::string> quiet = words;
  quiet.emplace_back("--quiet");
  // Side by side, for each takes more than a second.
  const auto run = [](const PosixCommand& command) {
    return std::async(std::launch::async, [command] { return command.RunWithErrorsOnTerminal(); });
  };
  std::future<Outcome> outcomes[] = {
      run(PosixCommand(quiet).Environment("TERM=xterm")),
      run(PosixCommand(words).Environment("TERM=dumb")),
      run(PosixCommand(words).Environment("TERM=")),
      run(PosixCommand(words)),
      std::async(std::launch::async,
                 [&words] { return PosixCommand(words).Environment("TERM=xterm").Run(); }),
  };
  const Outcome first = outcomes[0].get();
  EXPECT_EQ(first.status, 0);
  EXPECT_EQ(first.err, "");
  for (std::size_t i = 1; i < std::size(outcomes); ++i) {
    EXPECT_EQ(outcomes[i].get(), first) << i;
  }
}

TEST_F(CommandProgressTest, IsNotShownOfAShortRun) {
  EXPECT_EQ(PosixCommand(Words(1)).Environment("TERM=xterm").RunWithErrorsOnTerminal().err, "");
}

}  // namespace
}  // namespace strake::tests
