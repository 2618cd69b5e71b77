#include "plugin/host/TCIMDateTime.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace NVELKZEV20 {
namespace {

void CheckField(const char* field, std::int64_t value, std::int64_t low, std::int64_t high) {
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

// Writes a number over the zeros before `end`. Fields are held to their widths
// when they are set.
void PutDigits(std::string& text, std::size_t end, unsigned int value) {
  for (; value != 0; value /= 10) {
    text[--end] = static_cast<char>('0' + value % 10);
  }
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
  std::string text = "00000000000000.000000+000";
  PutDigits(text, 4, fYear);
  PutDigits(text, 6, fMonth);
  PutDigits(text, 8, fDay);
  PutDigits(text, 10, fHour);
  PutDigits(text, 12, fMinute);
  PutDigits(text, 14, fSecond);
  PutDigits(text, 21, fMicroseconds);
  if (fUtcOffset < 0) {
    text[21] = '-';
  }
  PutDigits(text, 25, static_cast<unsigned int>(std::abs(fUtcOffset)));
  return text;
}

}  // namespace NVELKZEV20
