#include "os/Handle_windows.h"
#include "os/LocalTime.h"

#include <algorithm>
#include <cstdint>

namespace strake::os {
namespace {

// Times of files count tenths of microseconds.
std::int64_t Ticks(const FILETIME& time) {
  return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32U |
                                   std::uint64_t{time.dwLowDateTime});
}

FILETIME AsFileTime(const SYSTEMTIME& time) {
  FILETIME result{};
  if (::SystemTimeToFileTime(&time, &result) == 0) {
    FailBy();
  }
  return result;
}

}  // namespace

LocalTime Now() {
  constexpr std::int64_t kTicksASecond = 10'000'000;
  constexpr std::int64_t kTicksAMinute = 60 * kTicksASecond;
  FILETIME now{};
  ::GetSystemTimePreciseAsFileTime(&now);
  SYSTEMTIME utc{};
  SYSTEMTIME local{};
  if (::FileTimeToSystemTime(&now, &utc) == 0 ||
      ::SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local) == 0) {
    FailBy();
  }
  const std::int64_t offset = Ticks(AsFileTime(local)) - Ticks(AsFileTime(utc));
  return {.year = local.wYear,
          .month = local.wMonth,
          .day = local.wDay,
          .hour = local.wHour,
          .minute = local.wMinute,
          .second = std::min<int>(local.wSecond, 59),
          .microseconds = static_cast<int>(Ticks(now) % kTicksASecond / 10),
          .utcOffset = static_cast<int>(offset / kTicksAMinute)};
}

}  // namespace strake::os
