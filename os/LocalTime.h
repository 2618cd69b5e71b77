// The system's local time.
#pragma once

namespace strake::os {

struct LocalTime {
  int year;
  int month;  // 1 to 12
  int day;
  int hour;
  int minute;
  int second;  // 0 to 59: a leap second is shown as the second before it
  int microseconds;
  int utcOffset;  // in minutes, east of Greenwich positive
};

// Throws std::system_error.
LocalTime Now();

}  // namespace strake::os
