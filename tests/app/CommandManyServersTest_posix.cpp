// Several servers among few descriptors, by names of standard input, and ended by
// signals.
#include "tests/app/CommandManyServersTest.h"
#include "tests/app/Command_posix.h"
#include "tests/support/Processes.h"

#include <csignal>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using nlohmann::json;
using Names = std::set<std::string>;
using Words = std::vector<std::string>;

TEST_F(CommandManyServersTest, CanBeHundredsAmongFewDescriptors) {
  const Words servers(kMany, Server("s"));
  const Outcome outcome = PosixCommand(Collecting(servers, {"--jobs", "4"})).Descriptors(24).Run();
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  const Words lines = LinesOf(WithoutTime(outcome.out));
  EXPECT_EQ(lines, Words(kMany, lines.at(0)));
}

TEST_F(CommandManyServersTest, MayBeStandardInputByEachOfItsNames) {
  const std::string fine = Server("fine");
  for (const std::string name : {"-", "/dev/stdin"}) {
    const Outcome outcome =
        PosixCommand(Collecting({fine, name, fine})).Reading(STDIN_FILENO, fine).Run();
    EXPECT_EQ(outcome.status, 0) << name;
    const Words lines = LinesOf(outcome.out);
    ASSERT_EQ(lines.size(), 3U) << outcome;
    EXPECT_EQ(json::parse(lines[1]).at("instances"), json::parse(lines[2]).at("instances"));
  }
}

TEST_F(CommandManyServersTest, AreRefusedWhereTwoAreStandardInputByDifferentNames) {
  EXPECT_EQ(Strake({"collect", "--server", "/dev/stdin", "--server", "-", "--format", "jsonl"}),
            (Outcome{2, "",
                     "strake: --server: two of them are standard input (see strake collect "
                     "--help)\n"}));
}

TEST_F(CommandManyServersTest, AreWrittenToAFileWithTheModeOfItsUsersMask) {
  const std::vector<std::string> servers = {Server("a"), Server("b")};
  EXPECT_EQ(Collect(servers, {"--output", fFolder / "reports.jsonl"}).status, 0);
  EXPECT_EQ(ModeOf(fFolder / "reports.jsonl"), 0644U);
}

// What ends a run while two of its servers keep it waiting.
class CommandManyServersEndTest : public CommandManyServersTest {
 protected:
  // The first two of the servers are silent ones, and wait when ACT is called.
  [[nodiscard]] Outcome RunUntilTheyWait(const Words& servers, const Words& more,
                                         const std::function<void(pid_t)>& act) const {
    Words words = Collecting(servers, {"--jobs", "2", "--log-level", "4"});
    words.insert(words.end(), more.begin(), more.end());
    return PosixCommand(words).RunUntil(fSilent + ": [3] Strake plugin begin execution.\n",
                                        [&](pid_t process) {
                                          fProcesses = ProcessesWith(fFolder.Path());
                                          EXPECT_EQ(fProcesses.size(), 3U);
                                          act(process);
                                        });
  }

  std::string fSilent = Silent("silent");
  mutable std::set<pid_t> fProcesses;
};

TEST_F(CommandManyServersEndTest, BySignalLeavesNothingBehind) {
  const std::string report = fFolder.Write("report", "old");
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    const Outcome outcome = RunUntilTheyWait({fSilent, fSilent, fSilent}, {"--output", report},
                                             [signal](pid_t process) { ::kill(process, signal); });
    EXPECT_EQ(outcome.status, -signal);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(ReadFile(report), "old");
    EXPECT_EQ(fFolder.Names(), (Names{"report", "silent"}));
    ExpectNothingLeft();
  }
}

TEST_F(CommandManyServersEndTest, ByKillingEndsTheProcessesToo) {
  const Outcome outcome =
      RunUntilTheyWait({fSilent, fSilent}, {}, [](pid_t process) { ::kill(process, SIGKILL); });
  EXPECT_EQ(outcome.status, -SIGKILL);
  for (const pid_t process : fProcesses) {
    EXPECT_TRUE(EndsSoon(process));
  }
}

TEST_F(CommandManyServersEndTest, ByAReaderThatWentAwayLeavesNothingBehind) {
  const Words words = Collecting({Server("fine"), fSilent}, {"--jobs", "2"});
  EXPECT_EQ(PosixCommand(words).NoReader().Run(), (Outcome{-SIGPIPE, "", ""}));
  ExpectNothingLeft();
  EXPECT_EQ(PosixCommand(words).NoReader().Ignoring(SIGPIPE).Run(),
            (Outcome{1, "", "strake: cannot write to standard output: Broken pipe\n"}));
  ExpectNothingLeft();
  EXPECT_EQ(PosixCommand(words).StandardOutput("/dev/full").Run(),
            (Outcome{1, "", "strake: cannot write to standard output: No space left on device\n"}));
  ExpectNothingLeft();
}

TEST_F(CommandManyServersEndTest, OfOneProcessByAnotherHandIsAFailureOfThatServer) {
  const std::string text = "its process was ended by signal 9 (Killed)";
  const std::string fine = Server("fine");
  const Outcome outcome = RunUntilTheyWait({fSilent, fSilent, fine}, {}, [this](pid_t process) {
    for (const pid_t one : fProcesses) {
      if (one != process) {
        ::kill(one, SIGKILL);
      }
    }
  });
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(WithoutTime(outcome.out),
            WithoutTime(Failure("silent", text) + Failure("silent", text) + Collect({fine}).out));
}

}  // namespace
}  // namespace strake::tests
