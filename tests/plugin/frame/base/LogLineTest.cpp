// The logging core: one line a call, put together only behind an open gate.
#include "platform/hostcore/HostControl.h"
#include "plugin/frame/base/LogLine.h"
#include "tests/support/Recorder.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace strake::tests {
namespace {

// Any address: the gate is open when there is one.
constexpr char kOpen = 0;

// A part that tells when it is written.
struct Told {
  int& times;

  friend void AppendPart(std::string& text, const Told& part) {
    ++part.times;
    text += 'x';
  }
};

class LogLineTest : public testing::Test {
 protected:
  LogLineTest() { platform::SetHostObserver(&fRecord); }
  ~LogLineTest() override { platform::SetHostObserver(nullptr); }

  Recorder fRecord;
};

TEST_F(LogLineTest, TakesEveryKindOfTextAlone) {
  const std::string text = "a string";
  const char* const characters = "characters";
  LogLine(&kOpen, 0, "a literal");
  LogLine(&kOpen, 1, text);
  LogLine(&kOpen, 2, std::string_view("a view"));
  LogLine(&kOpen, 3, characters);
  LogLine(&kOpen, 4, 17);
  EXPECT_EQ(fRecord.Logs(),
            (Lines{"0 a literal", "1 a string", "2 a view", "3 characters", "4 17"}));
}

TEST_F(LogLineTest, PutsPartsTogetherAndForgetsTheLineBefore) {
  LogLine(&kOpen, 4, "a long line to begin with: ", 1234567);
  LogLine(&kOpen, 4, "n = ", static_cast<unsigned char>(200), ", ", true);
  EXPECT_EQ(fRecord.Logs(), (Lines{"4 a long line to begin with: 1234567", "4 n = 200, 1"}));
}

TEST_F(LogLineTest, DropsEmptyLines) {
  LogLine(&kOpen, 3, "");
  LogLine(&kOpen, 3, std::string());
  LogLine(&kOpen, 3, std::string_view(), "");
  EXPECT_EQ(fRecord.Logs(), Lines{});
}

TEST_F(LogLineTest, BuildsNothingWhileTheGateIsClosed) {
  int times = 0;
  LogLine(nullptr, 3, "line ", Told{times});
  LogMessage(nullptr, 3, "line");
  EXPECT_EQ(times, 0);
  EXPECT_EQ(fRecord.Logs(), Lines{});
  LogLine(&kOpen, 3, "line ", Told{times});
  EXPECT_EQ(times, 1);
  EXPECT_EQ(fRecord.Logs(), (Lines{"3 line x"}));
}

}  // namespace
}  // namespace strake::tests
