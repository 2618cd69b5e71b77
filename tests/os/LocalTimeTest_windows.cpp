#include "os/LocalTime.h"

#include <chrono>
#include <gtest/gtest.h>
#include <windows.h>

namespace strake::tests {
namespace {

using std::chrono::floor;
using std::chrono::minutes;
using std::chrono::seconds;
using std::chrono::system_clock;

// As far from 1970 as it were, were it UTC.
system_clock::time_point PointOf(const os::LocalTime& time) {
  const std::chrono::year_month_day date{std::chrono::year(time.year),
                                         std::chrono::month(static_cast<unsigned>(time.month)),
                                         std::chrono::day(static_cast<unsigned>(time.day))};
  return std::chrono::sys_days(date) + std::chrono::hours(time.hour) + minutes(time.minute) +
         seconds(time.second) + std::chrono::microseconds(time.microseconds);
}

// East of Greenwich positive; Windows counts the other way.
int OffsetOfTheSystem() {
  TIME_ZONE_INFORMATION zone{};
  const DWORD season = ::GetTimeZoneInformation(&zone);
  const LONG more = season == TIME_ZONE_ID_DAYLIGHT   ? zone.DaylightBias
                    : season == TIME_ZONE_ID_STANDARD ? zone.StandardBias
                                                      : 0;
  return static_cast<int>(-(zone.Bias + more));
}

TEST(LocalTime, IsAsFarFromUtcAsTheSystemSays) {
  const auto before = floor<seconds>(system_clock::now());
  const os::LocalTime now = os::Now();
  const auto after = system_clock::now() + seconds(1);
  EXPECT_EQ(now.utcOffset, OffsetOfTheSystem());
  const auto utc = PointOf(now) - minutes(now.utcOffset);
  EXPECT_GE(utc, before);
  EXPECT_LE(utc, after);
}

}  // namespace
}  // namespace strake::tests
