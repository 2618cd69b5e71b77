#include "os/LocalTime.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <system_error>

namespace strake::os {

LocalTime Now() {
  using std::chrono::floor;
  const auto now = std::chrono::system_clock::now();
  const auto wholeSeconds = floor<std::chrono::seconds>(now);
  const auto microseconds = floor<std::chrono::microseconds>(now - wholeSeconds).count();
  const std::time_t stamp = std::chrono::system_clock::to_time_t(wholeSeconds);
  std::tm local{};
  if (localtime_r(&stamp, &local) == nullptr) {
    throw std::system_error(errno, std::generic_category(), "local time");
  }
  return {.year = local.tm_year + 1900,
          .month = local.tm_mon + 1,
          .day = local.tm_mday,
          .hour = local.tm_hour,
          .minute = local.tm_min,
          .second = std::min(local.tm_sec, 59),
          .microseconds = static_cast<int>(microseconds),
          .utcOffset = static_cast<int>(local.tm_gmtoff / 60)};
}

}  // namespace strake::os
