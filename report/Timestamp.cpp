#include "report/Timestamp.h"

#include <cstddef>

namespace strake::report {
namespace {

void AppendDigits(std::string& out, std::size_t width, long number) {
  const std::string digits = std::to_string(number);
  out.append(width - digits.size(), '0').append(digits);
}

}  // namespace

std::string Timestamp(std::chrono::sys_seconds moment) {
  const auto midnight = std::chrono::floor<std::chrono::days>(moment);
  const std::chrono::year_month_day date(midnight);
  const std::chrono::hh_mm_ss time(moment - midnight);
  std::string out;
  AppendDigits(out, 4, static_cast<int>(date.year()));
  out += '-';
  AppendDigits(out, 2, static_cast<unsigned int>(date.month()));
  out += '-';
  AppendDigits(out, 2, static_cast<unsigned int>(date.day()));
  out += 'T';
  AppendDigits(out, 2, time.hours().count());
  out += ':';
  AppendDigits(out, 2, time.minutes().count());
  out += ':';
  AppendDigits(out, 2, time.seconds().count());
  return out + 'Z';
}

}  // namespace strake::report
