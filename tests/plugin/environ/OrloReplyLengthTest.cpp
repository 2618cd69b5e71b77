// Orlo replies of every length, and of lengths that are not true.
#include "tests/plugin/environ/OrloCases.h"

#include <gtest/gtest.h>
#include <limits>

namespace strake::tests {
namespace {

using platform::Reply;

constexpr std::size_t kBufferSize = 256;

std::string Pattern(int size) {
  std::string bytes;
  for (int i = 0; i < size; ++i) {
    bytes.push_back(static_cast<char>(0xF4 - 0x11 * i));
  }
  return bytes;
}

// What a reader may see of a reply at an offset: bytes within the reported
// length and the buffer, zero elsewhere.
int SeenByte(const Reply& reply, std::size_t offset) {
  const auto reported = static_cast<unsigned int>(reply.length);
  const bool isSeen = offset < reported && offset < kBufferSize && offset < reply.bytes.size();
  return isSeen ? static_cast<unsigned char>(reply.bytes[offset]) : 0;
}

int SeenWord(const Reply& reply) { return SeenByte(reply, 0) + 256 * SeenByte(reply, 1); }

int ExpectedVoltage(const Reply& reply) {
  const int word = SeenWord(reply);
  return word < 32768 ? word : word - 65536;
}
int ExpectedFan(const Reply& reply) { return SeenByte(reply, 0); }

struct LengthCase {
  const OrloCase& orlo;
  std::size_t index;
  int (*expected)(const Reply&);
};

constexpr LengthCase kLengthCases[] = {
    {kOrloVoltageCase, 3, ExpectedVoltage},
    {kOrloTemperatureCase, 12, SeenWord},
    {kOrloFanCase, 15, ExpectedFan},
};

// One sensor answers with the reply, all others fail.
void ExpectReading(const LengthCase& lengthCase, const Reply& reply) {
  SCOPED_TRACE(std::string(lengthCase.orlo.reader) + ": " + std::to_string(reply.bytes.size()) +
               " bytes, length " + std::to_string(reply.length));
  const OrloSensorEntry& sensor = lengthCase.orlo.sensors[lengthCase.index];
  SensorBench bench(Scenario::Orlo().Answer(Dotted(sensor), {reply}));
  EXPECT_EQ(lengthCase.orlo.Read(bench.collector), 0);
  Lines records;
  Lines trail = Answered(Dotted(sensor), reply.length);
  if (reply.length == 0) {
    trail.push_back(std::string("3 No data retrieved for ") + sensor.name);
  } else {
    const int reading = lengthCase.expected(reply);
    trail.push_back(std::string("3 ") + sensor.name + " = " + std::to_string(reading));
    records.push_back(RecordText(0, lengthCase.index, reading, lengthCase.orlo.units,
                                 lengthCase.orlo.modifier, sensor.name));
  }
  EXPECT_EQ(RecordTexts(lengthCase.orlo.Records(bench.collector)), records);
  const Lines logs = bench.record.Logs();
  // Five lines for each of the sensors before it, which do not answer.
  const auto begin = logs.begin() + 1 + 5 * static_cast<std::ptrdiff_t>(lengthCase.index);
  EXPECT_EQ(Lines(begin, begin + 4), trail);
}

TEST(OrloReplyLength, RepliesOfEveryLengthReadAsTheirFirstBytes) {
  for (const LengthCase& lengthCase : kLengthCases) {
    for (int size = 0; size <= 300; ++size) {
      ExpectReading(lengthCase, Success(Pattern(size)));
    }
  }
}

TEST(OrloReplyLength, ReportedLengthsThatAreNotTrueReadWithinTheBuffer) {
  constexpr int kReported[] = {
      std::numeric_limits<int>::min(), -65536, -256, -2, -1, 0, 1, 2, 3, 255, 256, 257, 1000, 65536,
      std::numeric_limits<int>::max()};
  for (const LengthCase& lengthCase : kLengthCases) {
    for (const int size : {0, 1, 2, 3, 256, 300}) {
      for (const int reported : kReported) {
        ExpectReading(lengthCase, Reported(Pattern(size), reported));
      }
    }
  }
}

TEST(OrloReplyLength, AOneByteReplyReadsItsMissingHighByteAsZero) {
  ExpectReading(kLengthCases[0], Success(Bytes({0xF4})));
  // The byte is in the buffer, but not in what the SP says it brought.
  ExpectReading(kLengthCases[0], Reported(Bytes({0xF4, 0x81}), 1));
  ExpectReading(kLengthCases[1], Reported(Bytes({0xF4, 0x81}), 1));
}

TEST(OrloReplyLength, AReplyThatBringsLessThanItClaimsShowsNothingOfTheSensorBefore) {
  SensorBench bench(Scenario::Orlo()
                        .Answer("2.2.1.1", Bytes({0xFF, 0xFF}))
                        .Answer("2.2.1.2", {Reported("", 2)})
                        .Answer("2.2.1.3", {Reported(Bytes({0x05}), 256)}));
  bench.collector.GetOrloVoltage();
  EXPECT_EQ(RecordTexts(bench.collector.OrloVoltages()),
            (Lines{"node 0 index 0 reading -1 units 5 modifier -2 [Planar Voltage +5v]",
                   "node 0 index 1 reading 0 units 5 modifier -2 [Planar Voltage +3.3v]",
                   "node 0 index 2 reading 5 units 5 modifier -2 [Planar Voltage +12v]"}));
}

}  // namespace
}  // namespace strake::tests
