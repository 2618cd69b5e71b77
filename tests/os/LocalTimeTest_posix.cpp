#include "os/LocalTime.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace strake::tests {
namespace {

// The process' time zone, and afterwards the one from before.
class TimeZone {
 public:
  explicit TimeZone(const char* posixText) {
    if (const char* const before = std::getenv("TZ")) fBefore = before;
    Set(posixText);
  }
  TimeZone(const TimeZone&) = delete;
  TimeZone& operator=(const TimeZone&) = delete;
  ~TimeZone() { Set(fBefore ? fBefore->c_str() : nullptr); }

 private:
  static void Set(const char* text) {
    if (text != nullptr) {
      ::setenv("TZ", text, 1);
    } else {
      ::unsetenv("TZ");
    }
    ::tzset();
  }

  std::optional<std::string> fBefore;
};

// In seconds since 1970, were it UTC.
std::time_t StampOf(const os::LocalTime& time) {
  std::tm fields{};
  fields.tm_year = time.year - 1900;
  fields.tm_mon = time.month - 1;
  fields.tm_mday = time.day;
  fields.tm_hour = time.hour;
  fields.tm_min = time.minute;
  fields.tm_sec = time.second;
  return ::timegm(&fields);
}

struct Case {
  const char* name;
  const char* zone;  // POSIX counts west of Greenwich as positive
  int utcOffset;
};

class LocalTime : public testing::TestWithParam<Case> {};

TEST_P(LocalTime, IsAsFarFromUtcAsItsOffsetSays) {
  const TimeZone zone(GetParam().zone);
  const std::time_t before = std::time(nullptr);
  const os::LocalTime now = os::Now();
  const std::time_t after = std::time(nullptr);
  EXPECT_EQ(now.utcOffset, GetParam().utcOffset);
  const std::time_t utc = StampOf(now) - std::time_t{60} * GetParam().utcOffset;
  EXPECT_GE(utc, before);
  EXPECT_LE(utc, after);
}

std::string NameOf(const testing::TestParamInfo<Case>& zone) { return zone.param.name; }

INSTANTIATE_TEST_SUITE_P(Offset, LocalTime,
                         testing::Values(Case{"Utc", "UTC0", 0}, Case{"East", "EAST-2", 120},
                                         Case{"West", "WEST5", -300},
                                         Case{"EastByAHalf", "HALF-5:30", 330},
                                         Case{"WestByAHalf", "HALF3:30", -210},
                                         Case{"FarEast", "FAR-14", 840},
                                         Case{"FarWest", "FAR12", -720}),
                         NameOf);

}  // namespace
}  // namespace strake::tests
