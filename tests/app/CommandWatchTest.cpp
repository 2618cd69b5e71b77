// The command's watch as it is run.
#include "tests/app/Command.h"
#include "tests/support/Conversation.h"
#include "tests/support/Places.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>

namespace strake::tests {
namespace {

// The time of a round is the run's own.
std::string WithoutTimes(const std::string& text) {
  static const std::regex time(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ)");
  return std::regex_replace(text, time, "TIME");
}

class CommandWatchTest : public testing::Test {
 protected:
  // A card with one sensor that is asked for, whose readings and silence differ
  // from round to round. In the last one the card itself is silent.
  [[nodiscard]] std::vector<std::string> Words(const std::vector<std::string>& more) const {
    const std::string server = fFolder.Write("s.server.json", R"({
        "format": "strake-server/1", "machine_type_model": "5301-AR2", "sp": {"kind": "orlo",
        "instances": [{"dot_commands": {
        "1.1": ["01", "01", "01", "01", {"succeeds": false}],
        "2.2.1.1": ["F4 01", "F4 01", "FE 01", {"succeeds": false}]}}]}})");
    std::vector<std::string> words{"watch", "--server", server,     "--interval",
                                   "1ms",   "--sensor", "*Vol*+5v", "--no-header"};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  }

  TemporaryFolder fFolder;
};

constexpr const char* kFirst =
    "TIME, round 1: the first\n\nSP 1  voltage  Planar Voltage +5v  5.00 V\n\n";

TEST_F(CommandWatchTest, AppendsRoundsWithTheirTimeAndMarksWhatChanged) {
  const Outcome outcome = Strake(Words({"--count", "5"}));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  const std::string text = WithoutTimes(outcome.out);
  EXPECT_EQ(text.find(kFirst), 0U) << text;
  for (const std::string part :
       {"\nTIME, round 2: nothing changed\n\nSP 1  voltage  Planar Voltage +5v  5.00 V\n",
        "\nTIME, round 3: 1 value changed: Planar Voltage +5v on SP 1\n\nSP 1  voltage  Planar "
        "Voltage +5v  > 5.10 V\n",
        "\nTIME, round 4: 1 new finding, 1 value changed: Planar Voltage +5v on SP 1\n\n"
        "SP 1  voltage  Planar Voltage +5v  > no answer\n"
        "SP 1  finding  warning  > 42 of 42 sensors on SP 1 did not answer: ",
        "\nTIME, round 5: 1 new finding\n\n"
        "SP 1  finding  critical  > SP 1 did not answer its presence test\n"}) {
    EXPECT_NE(text.find(part), std::string::npos) << part << text;
  }
  EXPECT_TRUE(text.ends_with("presence test\n"));
}

TEST_F(CommandWatchTest, DoesNotMarkWithinTheTolerance) {
  const std::string text = WithoutTimes(Strake(Words({"--count", "3", "--tolerance", "2"})).out);
  EXPECT_NE(text.find("round 3: nothing changed\n\nSP 1  voltage  Planar Voltage +5v  5.10 V\n"),
            std::string::npos)
      << text;
}

TEST_F(CommandWatchTest, DrawsRoundsOverEachOtherOnATerminalAndLeavesTheLast) {
  const Outcome outcome =
      Command(Words({"--count", "3"})).Environment("TERM=xterm").RunOnTerminal();
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

TEST_F(CommandWatchTest, SaysOnceThatNoSensorIsCalledSo) {
  const Outcome outcome =
      Strake({"watch", "--interval", "1ms", "--count", "2", "--sensor", "nix", "--no-header"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "strake: warning: --sensor: no sensor is called 'nix'\n");
}

TEST_F(CommandWatchTest, TellsTheLogLinesOfARoundThatFailed) {
  const std::vector<std::string> words{"watch",   "--plugin", HostileModule(), "--class", "sensors",
                                       "--count", "1"};
  const Outcome drawn = Command(words).Environment("TERM=xterm").RunOnTerminal();
  EXPECT_EQ(drawn.status, 1);
  EXPECT_EQ(drawn.err, Strake(words).err);
}

TEST_F(CommandWatchTest, WithoutColourMarksOnATerminalBySigns) {
  const Outcome outcome = Command(Words({"--count", "3"}))
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
  const Outcome drawn = Command(words).Environment("TERM=xterm").RunOnTerminal();
  EXPECT_EQ(drawn.err.find("[3] "), 0U) << drawn.err;
  EXPECT_EQ(drawn.out.find("[3] "), std::string::npos);
}

TEST_F(CommandWatchTest, GoesOnUntilASignalWhichCompletesTheLog) {
  const std::string log = fFolder / "log";
  const Outcome outcome =
      Command({"watch", "--interval", "1ms", "--query", "NoSuchClass", "--log", log})
          .RunUntil("NoSuchClass'\n", SIGTERM);
  EXPECT_EQ(outcome.status, -SIGTERM);
  EXPECT_TRUE(fFolder.Names().contains("log"));
}

TEST_F(CommandWatchTest, RefusesWhatItCannotDo) {
  const struct {
    std::vector<std::string> words;
    std::string refusal;
  } cases[] = {
      {{"--interval", "10"},
       "--interval: '10' is no duration, expected a number and ms, s, m or h, up to 24h"},
      {{"--interval", "0s"},
       "--interval: '0s' is no duration, expected a number and ms, s, m or h, up to 24h"},
      {{"--count", "0"}, "--count: '0' is no count, expected a number from 1"},
      {{"--count", "4294967296"}, "--count: '4294967296' is no count, expected a number from 1"},
      {{"--tolerance", "-1"}, "--tolerance: '-1' is no percentage, expected a number from 0"},
      {{"--filter", "dial-in.Supervisor=x"},
       "--filter: VELKSG_ServProc_DialProtocolEndpoint2 is not asked for"},
      {{"--format", "json"}, "there is no option '--format'"},
      {{"--trace", "run.trace"}, "there is no option '--trace'"},
  };
  for (const auto& one : cases) {
    std::vector<std::string> words{"watch", "--count", "1", "--class", "sensors"};
    if (one.words.front() == "--count") {
      words.erase(words.begin() + 1, words.begin() + 3);
    }
    words.insert(words.end(), one.words.begin(), one.words.end());
    const Outcome outcome = Strake(words);
    EXPECT_EQ(outcome.status, 2) << one.refusal;
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "strake: " + one.refusal + " (see strake watch --help)\n");
  }
}

}  // namespace
}  // namespace strake::tests
