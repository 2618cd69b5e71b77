#include "report/ClockOffset.h"

#include "report/DateTimeForPeople.h"

#include <array>

namespace strake::report {
namespace {

constexpr long kHoursADay = 24;
constexpr long kMinutesAnHour = 60;
constexpr long kSecondsAMinute = 60;

unsigned int NumberAt(std::string_view text, std::size_t offset, std::size_t width) {
  unsigned int number = 0;
  for (const char digit : text.substr(offset, width)) {
    number = number * 10 + static_cast<unsigned int>(digit - '0');
  }
  return number;
}

struct Unit {
  std::chrono::seconds length;
  std::string_view name;
};

constexpr std::array<Unit, 4> kUnits{{
    {std::chrono::days(1), " d"},
    {std::chrono::hours(1), " h"},
    {std::chrono::minutes(1), " min"},
    {std::chrono::seconds(1), " s"},
}};

}  // namespace

std::optional<std::chrono::sys_seconds> MomentOf(std::string_view cimText) {
  if (!IsDateTime(cimText)) {
    return std::nullopt;
  }
  const std::chrono::year_month_day date{
      std::chrono::year(static_cast<int>(NumberAt(cimText, 0, 4))),
      std::chrono::month(NumberAt(cimText, 4, 2)), std::chrono::day(NumberAt(cimText, 6, 2))};
  const unsigned int hour = NumberAt(cimText, 8, 2);
  const unsigned int minute = NumberAt(cimText, 10, 2);
  const unsigned int second = NumberAt(cimText, 12, 2);
  if (!date.ok() || hour >= kHoursADay || minute >= kMinutesAnHour || second >= kSecondsAMinute) {
    return std::nullopt;
  }
  const std::chrono::minutes offset(NumberAt(cimText, 22, 3));
  const std::chrono::sys_seconds local = std::chrono::sys_days(date) + std::chrono::hours(hour) +
                                         std::chrono::minutes(minute) +
                                         std::chrono::seconds(second);
  return cimText[21] == '-' ? local + offset : local - offset;
}

std::string OffsetForPeople(std::chrono::seconds ahead) {
  const bool isBehind = ahead < std::chrono::seconds::zero();
  std::chrono::seconds left = isBehind ? -ahead : ahead;
  std::string text;
  std::size_t index = 0;
  while (index < kUnits.size() && left < kUnits.at(index).length) {
    ++index;
  }
  for (const std::size_t end = index + 2; index < end && index < kUnits.size(); ++index) {
    const Unit& unit = kUnits.at(index);
    if (left >= unit.length) {
      text += text.empty() ? "" : " ";
      text += std::to_string(left / unit.length);
      text += unit.name;
      left %= unit.length;
    }
  }
  if (text.empty()) {
    return "no difference";
  }
  return text + (isBehind ? " behind" : " ahead");
}

}  // namespace strake::report
