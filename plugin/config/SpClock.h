// Times as an SP tells them: its clock and its logins' last visits share a
// layout, and its time zone goes with both.
#pragma once

#include "plugin/host/TCIMDateTime.h"
#include "plugin/spaccess/ByteView.h"
#include "plugin/spaccess/DotIdentifier.h"

#include <cstdint>

namespace strake {

inline constexpr DotIdentifier kReadClock = {4, 4, 1};
// The UTC offset: two bytes, low byte first.
inline constexpr DotIdentifier kReadTimeZone = {4, 4, 2};

// All fields as the SP tells them, in no checked range.
struct SpTime {
  unsigned short year;
  unsigned char month;
  unsigned char day;
  unsigned char hour;
  unsigned char minute;
  unsigned char second;
};

// Bytes: year - 2000, month, day, one not used, hour, minute, second.
inline SpTime DecodeSpTime(ByteView reply) {
  return {.year = static_cast<unsigned short>(2000 + reply[0]),
          .month = reply[1],
          .day = reply[2],
          .hour = reply[4],
          .minute = reply[5],
          .second = reply[6]};
}

inline std::uint16_t DecodeUtcOffset(ByteView reply) { return reply.LittleEndian16(0); }

// The offset's bits arrive as a signed number. Throws what the host throws on
// values that it does not accept.
inline void SetDateTime(NVELKZEV20::TCIMDateTime& dateTime, const SpTime& time,
                        std::uint16_t utcOffset) {
  dateTime.Set(time.year, time.month, time.day, time.hour, time.minute, time.second, 0,
               static_cast<std::int16_t>(utcOffset));
}

}  // namespace strake
