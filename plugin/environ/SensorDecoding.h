// From reply bytes to readings.
#pragma once

#include "plugin/environ/KestleSensors.h"
#include "plugin/spaccess/ByteView.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace strake {

// Orlo replies: bytes 0 and 1 hold a word, low byte first; a fan's byte 0 its
// percentage of full speed.
inline std::int32_t DecodeOrloVoltage(ByteView reply) { return Signed(reply.LittleEndian16(0)); }
inline std::int32_t DecodeOrloTemperature(ByteView reply) { return reply.LittleEndian16(0); }
inline std::int32_t DecodeOrloFan(ByteView reply) { return reply[0]; }

// Reading i of a Kestle list whose readings begin at `firstByte`.
inline std::int32_t DecodeKestleVoltage(ByteView reply, std::size_t firstByte, std::size_t i) {
  return Signed(reply.BigEndian16(firstByte + 2 * i));
}
inline std::int32_t DecodeKestleTemperature(ByteView reply, std::size_t firstByte, std::size_t i) {
  return reply[firstByte + i];
}

inline unsigned char KestleReturnLength(ByteView reply) { return reply[0]; }

// How many fans a reply of this length has room for: an int division, which
// truncates toward zero, kept in eight bits (length 0 gives 253).
inline unsigned char KestleFansByLength(unsigned char returnLength) {
  return static_cast<unsigned char>((returnLength - 6) / 2);
}

inline bool IsExpectedFanLength(const KestleFanLayout& layout, unsigned char returnLength) {
  return std::find(layout.expectedLengths.begin(), layout.expectedLengths.end(), returnLength) !=
         layout.expectedLengths.end();
}

}  // namespace strake
