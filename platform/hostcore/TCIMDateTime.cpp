#include "plugin/host/TCIMDateTime.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>

namespace NVELKZEV20 {
namespace {

void CheckField(const char* field, long value, long low, long high) {
  if (value >= low && value <= high) {
    return;
  }
  throw std::out_of_range(std::string(field) + ' ' + std::to_string(value) + " is not in " +
                          std::to_string(low) + ".." + std::to_string(high));
}

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int LastDayOf(int year, int month) {
  constexpr std::array kLastDays{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (month == 2 && IsLeapYear(year)) {
    return 29;
  }
  return kLastDays.at(static_cast<std::size_t>(month) - 1);
}

void AppendDigits(std::string& text, unsigned long value, std::size_t width) {
  const std::string digits = std::to_string(value);
  if (digits.size() < width) {
    text.append(width - digits.size(), '0');
  }
  text += digits;
}

}  // namespace

TCIMDateTime::TCIMDateTime()
    : fDay(0),
      fMicroseconds(0),
      fYear(0),
      fMonth(0),
      fHour(0),
      fMinute(0),
      fSecond(0),
      fUtcOffset(0) {}

TCIMDateTime::TCIMDateTime(const TCIMDateTime& other) = default;
TCIMDateTime& TCIMDateTime::operator=(const TCIMDateTime& other) = default;
// The host's declaration makes it no trivial one.
TCIMDateTime::~TCIMDateTime() {}  // NOLINT(modernize-use-equals-default)

void TCIMDateTime::Set(unsigned short year, unsigned short month, unsigned int day,
                       unsigned short hour, unsigned short minute, unsigned short second,
                       unsigned int microseconds, short utcOffset) {
  CheckField("year", year, 1, 9999);
  CheckField("month", month, 1, 12);
  CheckField("day", day, 1, LastDayOf(year, month));
  CheckField("hour", hour, 0, 23);
  CheckField("minute", minute, 0, 59);
  CheckField("second", second, 0, 59);
  CheckField("microseconds", microseconds, 0, 999999);
  CheckField("offset", utcOffset, -999, 999);
  fYear = year;
  fMonth = month;
  fDay = day;
  fHour = hour;
  fMinute = minute;
  fSecond = second;
  fMicroseconds = microseconds;
  fUtcOffset = utcOffset;
}

std::string TCIMDateTime::ToString() const {
  std::string text;
  text.reserve(25);
  AppendDigits(text, fYear, 4);
  AppendDigits(text, fMonth, 2);
  AppendDigits(text, fDay, 2);
  AppendDigits(text, fHour, 2);
  AppendDigits(text, fMinute, 2);
  AppendDigits(text, fSecond, 2);
  text += '.';
  AppendDigits(text, fMicroseconds, 6);
  text += fUtcOffset < 0 ? '-' : '+';
  AppendDigits(text, static_cast<unsigned long>(fUtcOffset < 0 ? -fUtcOffset : fUtcOffset), 3);
  return text;
}

}  // namespace NVELKZEV20
