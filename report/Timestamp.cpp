#include "report/Timestamp.h"

#include <array>
#include <cstddef>

namespace strake::report {
namespace {

void AppendDigits(std::string& out, std::size_t width, long long number) {
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

std::optional<std::chrono::sys_seconds> ParseTimestamp(std::string_view text) {
  constexpr std::string_view kForm = "0000-00-00T00:00:00Z";
  if (text.size() != kForm.size()) {
    return std::nullopt;
  }
  std::array<int, 6> fields{};  // year, month, day, hour, minute, second
  std::size_t field = 0;
  for (std::size_t i = 0; i < kForm.size(); ++i) {
    const bool isDigit = text[i] >= '0' && text[i] <= '9';
    if (kForm[i] == '0' ? !isDigit : text[i] != kForm[i]) {
      return std::nullopt;
    }
    if (isDigit) {
      fields.at(field) = fields.at(field) * 10 + (text[i] - '0');
    } else {
      ++field;
    }
  }
  using namespace std::chrono;  // NOLINT(google-build-using-namespace)
  const year_month_day date{year(fields[0]), month(static_cast<unsigned int>(fields[1])),
                            day(static_cast<unsigned int>(fields[2]))};
  if (!date.ok() || fields[3] > 23 || fields[4] > 59 || fields[5] > 59) {
    return std::nullopt;
  }
  return sys_days(date) + hours(fields[3]) + minutes(fields[4]) + seconds(fields[5]);
}

}  // namespace strake::report
