#include "app/Duration.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using std::chrono::milliseconds;

TEST(Duration, IsAWholeNumberAndAUnit) {
  EXPECT_EQ(milliseconds(1), app::ParseDuration("1ms"));
  EXPECT_EQ(milliseconds(500), app::ParseDuration("500ms"));
  EXPECT_EQ(milliseconds(10'000), app::ParseDuration("10s"));
  EXPECT_EQ(milliseconds(120'000), app::ParseDuration("2m"));
  EXPECT_EQ(milliseconds(86'400'000), app::ParseDuration("24h"));
}

TEST(Duration, IsWrittenInTheLargestUnitThatHoldsIt) {
  for (const char* const text : {"1ms", "1500ms", "1s", "90s", "2m", "1439m", "1h", "24h"}) {
    EXPECT_EQ(text, app::DurationText(*app::ParseDuration(text)));
  }
  EXPECT_EQ("2m", app::DurationText(milliseconds(120'000)));
}

TEST(Duration, IsNothingElse) {
  for (const char* const text :
       {"", "s", "10", "0s", "-1s", "+1s", "1.5s", " 1s", "1 s", "1s ", "1S", "1d", "25h", "1441m",
        "4294967295h", "4294967296ms", "0x1s"}) {
    EXPECT_FALSE(app::ParseDuration(text)) << text;
    EXPECT_EQ("'" + std::string(text) +
                  "' is no duration, expected a number and ms, s, m or h, up to 24h",
              app::RefuseDuration(text));
  }
  EXPECT_EQ("", app::RefuseDuration("24h"));
}

}  // namespace
}  // namespace strake::tests
