// How far two clocks are apart.
#include "report/ClockOffset.h"

#include <gtest/gtest.h>
#include <vector>

namespace strake::tests {
namespace {

using report::MomentOf;
using report::OffsetForPeople;
using std::chrono::seconds;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

constexpr sys_seconds At(int year, unsigned int month, unsigned int day, int hour, int minute,
                         int second) {
  return sys_days(std::chrono::year(year) / static_cast<int>(month) / static_cast<int>(day)) +
         std::chrono::hours(hour) + std::chrono::minutes(minute) + seconds(second);
}

TEST(ClockOffset, ReadsADateTimeAsAMomentInUtc) {
  struct Case {
    std::string_view text;
    std::optional<sys_seconds> moment;
  };
  const std::vector<Case> cases = {
      {"20240318094127.000000+060", At(2024, 3, 18, 8, 41, 27)},
      {"20240318024125.999999-360", At(2024, 3, 18, 8, 41, 25)},
      {"20240318094127.000000+000", At(2024, 3, 18, 9, 41, 27)},
      {"20240318094127.000000-000", At(2024, 3, 18, 9, 41, 27)},
      {"20240101000000.000000+999", At(2023, 12, 31, 7, 21, 0)},
      {"20240229235959.000000-001", At(2024, 3, 1, 0, 0, 59)},
      {"00010101000000.000000+000", At(1, 1, 1, 0, 0, 0)},
      {"99991231235959.000000-999", At(10000, 1, 1, 16, 38, 59)},
      // No moment.
      {"", std::nullopt},
      {"20240318094127.000000+06", std::nullopt},
      {"20240318094127.000000*060", std::nullopt},
      {"2024031809412X.000000+060", std::nullopt},
      {"20230229000000.000000+000", std::nullopt},
      {"20241301000000.000000+000", std::nullopt},
      {"20240100000000.000000+000", std::nullopt},
      {"20240101240000.000000+000", std::nullopt},
      {"20240101006000.000000+000", std::nullopt},
      {"20240101000060.000000+000", std::nullopt},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(MomentOf(one.text), one.moment) << one.text;
  }
}

TEST(ClockOffset, TellsTheTwoLargestUnits) {
  struct Case {
    seconds ahead;
    std::string_view text;
  };
  constexpr long kDay = 86400;
  const std::vector<Case> cases = {
      {seconds(0), "no difference"},
      {seconds(1), "1 s ahead"},
      {seconds(-59), "59 s behind"},
      {seconds(60), "1 min ahead"},
      {seconds(-61), "1 min 1 s behind"},
      {seconds(3599), "59 min 59 s ahead"},
      {seconds(3600), "1 h ahead"},
      {seconds(3659), "1 h ahead"},
      {seconds(3660), "1 h 1 min ahead"},
      {seconds(-kDay), "1 d behind"},
      {seconds(-kDay - 3599), "1 d behind"},
      {seconds(978 * kDay + 10 * 3600 + 59), "978 d 10 h ahead"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(OffsetForPeople(one.ahead), one.text);
  }
}

}  // namespace
}  // namespace strake::tests
