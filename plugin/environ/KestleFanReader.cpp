// Reads the fan list of a Tavit processor.
#include "plugin/environ/KestleSensors.h"
#include "plugin/environ/SensorDecoding.h"
#include "plugin/environ/TSPEnviron.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace strake {

using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::TZEVStatusCode;

TZEVStatusCode TSPEnviron::GetKestleFan(unsigned int kestleType) {
  LogLevel4("GetKestleFan() entered.");
  KestleReply reply;
  if (!AskKestle(kFanRequest, reply)) {
    LogLevel3("No data retrieved for Kestle Fans.");
  } else {
    LogLevel3("Data retrieved for Kestle Fans.");
    if (kestleType >= std::size(kTavitFamilies)) {
      LogLevel3("No matching Kestle_Type for ", kFanRequest.name);
    } else if (const auto& fans = std::span(kTavitFamilies)[kestleType].fans) {
      DecodeKestleFans(*fans, reply.Whole());
    } else {
      LogLevel3("No Fan information available for blades.");
    }
  }
  LogLevel4("GetKestleFan() completed.");
  return TZEVStatusCode(kZEVSuccess);
}

void TSPEnviron::DecodeKestleFans(const KestleFanLayout& layout, ByteView reply) {
  LogLevel4("Fans for ", layout.family, ".");
  const unsigned char returnLength = KestleReturnLength(reply);
  const std::size_t calculated = layout.fans != 0 ? layout.fans : KestleFansByLength(returnLength);
  // Told before the length is tested, so a wrong length shows its odd number.
  LogLevel3("Num_fans calculated = ", calculated);
  if (!IsExpectedFanLength(layout, returnLength)) {
    LogLevel3("Did not obtain correct returnLength for ", layout.family, " ", kFanRequest.name);
    return;
  }
  for (const KestleFanHeader& header : layout.headers) {
    LogLevel3(header.label, reply[header.byte]);
  }
  const std::size_t fans = std::min(calculated, std::size(kKestleFanNames));
  for (std::size_t i = 0; i < fans; ++i) {
    const std::size_t byte = layout.firstByte + 2 * i;
    const char* const name = std::span(kKestleFanNames)[i];
    // The diagnostic shows the byte counter, not the fan's number.
    LogLevel4("i = ", 2 * i, layout.highByteLabel, reply[byte] * 256, layout.lowByteLabel,
              reply[byte + 1]);
    const std::int32_t speed = reply.BigEndian16(byte);
    LogLevel3(name, " = ", speed);
    fKestleFans.emplace_back(static_cast<std::uint16_t>(i), speed, kRevolutionsPerMinute, 0, name);
  }
}

}  // namespace strake
