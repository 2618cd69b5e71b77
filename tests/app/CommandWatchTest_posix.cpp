// The command's watch on a terminal, and ended by a signal.
#include "tests/app/CommandWatchTest.h"
#include "tests/app/Command_posix.h"
#include "tests/support/Conversation.h"
#include "tests/support/Places.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <iterator>

namespace strake::tests {
namespace {

TEST_F(CommandWatchTest, DrawsRoundsOverEachOtherOnATerminalAndLeavesTheLast) {
  const Outcome outcome =
      PosixCommand(Words({"--count", "3"})).Environment("TERM=xterm").RunOnTerminal();
  EXPECT_EQ(outcome.status, 0);
  const std::string text = WithoutTimes(outcome.out);
  const std::string enter = "\x1b[?1049h\x1b[?25l\x1b[?7l\x1b[H";
  const std::string leave = "\x1b[J\x1b[?7h\x1b[?25h\x1b[?1049l";
  const std::string heading =
      "\x1b[1mTIME, round 3: 1 value changed: Planar Voltage +5v on SP 1\x1b[0m";
  EXPECT_EQ(text.find(enter + "Collecting s.server.json ...\x1b[K\x1b[J\x1b[H" +
                      "\x1b[1mTIME, round 1: the first\x1b[0m\x1b[K\r\n\x1b[K\r\n"),
            0U)
      << text;
  EXPECT_NE(text.find("\x1b[J\x1b[H" + heading + "\x1b[K"), std::string::npos) << text;
  EXPECT_NE(text.find("+5v  \x1b[7m5.10\x1b[0m V\x1b[K"), std::string::npos) << text;
  const std::size_t left = text.find(leave);
  ASSERT_NE(left, std::string::npos) << text;
  EXPECT_EQ(text.find(heading + "\n\n", left), left + leave.size()) << text;
}

// Its window shrinks, it is suspended and goes on, and is ended.
TEST_F(CommandWatchTest, ServesTheTerminalBetweenRounds) {
  std::vector<std::string> words{BuildFolder() + "/bin/strake"};
  std::ranges::copy(Words({}), std::back_inserter(words));
  *std::ranges::find(words, "1ms") = "1h";
  Conversation watch(words, {"TERM=xterm"});
  EXPECT_NE(watch.Hear("5.00 V\x1b[K\x1b[J").find("Collecting s.server.json ...\x1b[K\x1b[J\x1b[H"),
            std::string::npos);
  watch.Resize(2, 80);
  EXPECT_NE(watch.Hear("\x1b[J").find("\r\n... 2 more lines\x1b[K"), std::string::npos);
  watch.Say("\x1a");
  const std::string suspended = watch.Hear("more lines\x1b[K\x1b[J");
  EXPECT_NE(suspended.find("\x1b[?1049l\x1b[?1049h"), std::string::npos) << suspended;
  watch.Say("\x1c");
  EXPECT_NE(watch.Hear("\x1b[?1049l").find("\x1b[?1049l"), std::string::npos);
}

TEST_F(CommandWatchTest, TellsTheLogLinesOfARoundThatFailed) {
  const std::vector<std::string> words{"watch",   "--plugin", HostileModule(), "--class", "sensors",
                                       "--count", "1"};
  const Outcome drawn = PosixCommand(words).Environment("TERM=xterm").RunOnTerminal();
  EXPECT_EQ(drawn.status, 1);
  EXPECT_EQ(drawn.err, Strake(words).err);
}

TEST_F(CommandWatchTest, WithoutColourMarksOnATerminalBySigns) {
  const Outcome outcome = PosixCommand(Words({"--count", "3"}))
                              .Environment("TERM=xterm")
                              .Environment("NO_COLOR=1")
                              .RunOnTerminal();
  EXPECT_NE(outcome.out.find("\x1b[J\x1b[H2"), std::string::npos) << outcome.out;
  EXPECT_NE(outcome.out.find("+5v  > 5.10 V\x1b[K"), std::string::npos) << outcome.out;
  EXPECT_EQ(outcome.out.find("\x1b[7m"), std::string::npos);
}

// Where standard error is the screen, log lines would spoil it.
TEST_F(CommandWatchTest, ShowsLogLinesOnTheScreenWithTheirRound) {
  std::vector<std::string> words{BuildFolder() + "/bin/strake"};
  std::ranges::copy(Words({"--count", "1", "--log-level", "3"}), std::back_inserter(words));
  Conversation watch(words, {"TERM=xterm"});
  const std::string drawn = watch.Hear("\x1b[?1049l");
  EXPECT_NE(drawn.find("the first\x1b[0m\x1b[K\r\r\n[3] "), std::string::npos) << drawn;
  EXPECT_LT(drawn.find("\x1b[?1049h"), drawn.find("[3] "));
}

TEST_F(CommandWatchTest, LeavesLogLinesToStandardErrorWhereThatIsElsewhere) {
  const std::vector<std::string> words = Words({"--count", "1", "--log-level", "3"});
  const Outcome plain = Strake(words);
  EXPECT_EQ(plain.err.find('['), 0U) << plain.err;
  const Outcome drawn = PosixCommand(words).Environment("TERM=xterm").RunOnTerminal();
  EXPECT_EQ(drawn.err.find("[3] "), 0U) << drawn.err;
  EXPECT_EQ(drawn.out.find("[3] "), std::string::npos);
}

TEST_F(CommandWatchTest, GoesOnUntilASignalWhichCompletesTheLog) {
  const std::string log = fFolder / "log";
  const Outcome outcome =
      PosixCommand({"watch", "--interval", "1ms", "--query", "NoSuchClass", "--log", log})
          .RunUntil("NoSuchClass'\n", SIGTERM);
  EXPECT_EQ(outcome.status, -SIGTERM);
  EXPECT_TRUE(fFolder.Names().contains("log"));
}

}  // namespace
}  // namespace strake::tests
