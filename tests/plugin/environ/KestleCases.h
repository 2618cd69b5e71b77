// The lists of a Tavit processor, spelled out a second time: what each reader
// asks for, what each family's reply looks like, and the trail of it.
#pragma once

#include "tests/plugin/environ/SensorBench.h"

#include <algorithm>
#include <string>
#include <vector>

namespace strake::tests {

struct KestleCase {
  const char* reader;
  const char* subject;  // in the lines on data, with their closing point
  const char* command;
  int code;
  int checksum;
  NVELKZEV20::TZEVStatusCode (TSPEnviron::*read)(unsigned int);
  const std::vector<SensorRecord>& (TSPEnviron::*records)() const;

  int Read(TSPEnviron& collector, unsigned int selector) const {
    return (collector.*read)(selector).Code();
  }
  [[nodiscard]] const std::vector<SensorRecord>& Records(const TSPEnviron& collector) const {
    return (collector.*records)();
  }
};

inline constexpr KestleCase kVoltageCase = {"GetKestleVoltage",
                                            "Kestle Voltage",
                                            "MSG_VOLTAGE_LIST",
                                            166,
                                            90,
                                            &TSPEnviron::GetKestleVoltage,
                                            &TSPEnviron::KestleVoltages};
inline constexpr KestleCase kTemperatureCase = {"GetKestleTemperature",
                                                "Kestle Temperature",
                                                "MSG_TEMPERATURE_LIST",
                                                164,
                                                92,
                                                &TSPEnviron::GetKestleTemperature,
                                                &TSPEnviron::KestleTemps};
inline constexpr KestleCase kFanCase = {"GetKestleFan",
                                        "Kestle Fans.",
                                        "ALERT_FAN_INFORMATION",
                                        162,
                                        94,
                                        &TSPEnviron::GetKestleFan,
                                        &TSPEnviron::KestleFans};
inline constexpr const KestleCase* kKestleCases[] = {&kVoltageCase, &kFanCase, &kTemperatureCase};

// A reply whose byte 0 says `length`; the others are a pattern with both signs.
inline std::string PatternReply(int length, std::size_t size = 60) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<char>(i == 0 ? static_cast<std::size_t>(length) : 37 * i + 150));
  }
  return bytes;
}

// A byte of the 255-byte reply buffer after the reply was written to it.
inline int BufferByte(const std::string& reply, std::size_t offset) {
  return offset < std::min<std::size_t>(reply.size(), 255)
             ? static_cast<unsigned char>(reply[offset])
             : 0;
}
inline int BufferWord(const std::string& reply, std::size_t offset) {
  return BufferByte(reply, offset) * 256 + BufferByte(reply, offset + 1);
}

inline std::string ByteList(const std::string& reply, int reported) {
  std::string text = "4 h8Data = ";
  for (int i = 0; i < std::min(reported, 255); ++i) {
    text += std::to_string(BufferByte(reply, static_cast<std::size_t>(i))) + " ";
  }
  return text;
}

// The trail of a reader from its beginning to the end of its send.
inline Lines SendTrail(const KestleCase& list, const platform::Reply& reply) {
  const std::string code = std::to_string(list.code);
  Lines trail = {std::string("4 ") + list.reader + "() entered.", "4 sendKestleCommand entered.",
                 "4 Sending Kestle command: Length = 2, cmd = " + code + ", expectedcmd = " + code +
                     ", checksum = " + std::to_string(list.checksum) +
                     ", cmddataLen = 0, ack = 0, isreadflag = 1, ",
                 std::string("4 Result of Kestle cmd: Status: ") + (reply.succeeds ? "1" : "0") +
                     ". ReturnDataLen:" + std::to_string(reply.length) + "."};
  if (!reply.succeeds) {
    trail.emplace_back("3 Kestle command status = fail.");
  }
  trail.push_back(ByteList(reply.bytes, reply.length));
  trail.emplace_back("4 sendKestleCommand completed.");
  return trail;
}

// The whole trail of a reader that got data: the lines on it in the middle.
inline Lines DataTrail(const KestleCase& list, const platform::Reply& reply, const Lines& middle) {
  Lines trail = SendTrail(list, reply);
  trail.push_back(std::string("3 Data retrieved for ") + list.subject);
  Append(trail, middle);
  trail.push_back(std::string("4 ") + list.reader + "() completed.");
  return trail;
}

inline Lines NoDataTrail(const KestleCase& list, const platform::Reply& reply) {
  Lines trail = SendTrail(list, reply);
  trail.push_back(std::string("3 No data retrieved for ") + list.subject);
  trail.push_back(std::string("4 ") + list.reader + "() completed.");
  return trail;
}

// A collector on a Tavit processor that gives a reader this reply and no other
// command an answer.
inline Scenario Answering(const KestleCase& list, const platform::Reply& reply) {
  Scenario scenario = Scenario::Tavit("5120-AC1");
  scenario.Kestle(list.code, reply);
  return scenario;
}

}  // namespace strake::tests
