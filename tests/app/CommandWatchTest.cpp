// The command's watch as it is run.
#include "tests/app/CommandWatchTest.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

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

TEST_F(CommandWatchTest, SaysOnceThatNoSensorIsCalledSo) {
  const Outcome outcome =
      Strake({"watch", "--interval", "1ms", "--count", "2", "--sensor", "nix", "--no-header"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "strake: warning: --sensor: no sensor is called 'nix'\n");
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
