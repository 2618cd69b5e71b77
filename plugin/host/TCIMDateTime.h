// A CIM date-time value of the host. Supplied by the host core library.
#pragma once

#include <string>

namespace NVELKZEV20 {

class TCIMDateTime {
 public:
  TCIMDateTime();
  TCIMDateTime(const TCIMDateTime& other);
  TCIMDateTime& operator=(const TCIMDateTime& other);
  ~TCIMDateTime();

  // Sets all fields at once; `utcOffset` is taken as it is. Throws a
  // std::exception when the host does not accept a value, and then changes
  // nothing.
  void Set(unsigned short year, unsigned short month, unsigned int day, unsigned short hour,
           unsigned short minute, unsigned short second, unsigned int microseconds,
           short utcOffset);

  // The CIM text form, 25 characters.
  [[nodiscard]] std::string ToString() const;

 private:
  unsigned int fDay;
  unsigned int fMicroseconds;
  unsigned short fYear;
  unsigned short fMonth;
  unsigned short fHour;
  unsigned short fMinute;
  unsigned short fSecond;
  short fUtcOffset;
};

}  // namespace NVELKZEV20
