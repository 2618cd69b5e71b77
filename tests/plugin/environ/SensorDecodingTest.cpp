// From bytes to readings, over every value that the bytes can have.
#include "plugin/environ/SensorDecoding.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::tests {
namespace {

unsigned char Low(int word) { return static_cast<unsigned char>(word & 0xFF); }
unsigned char High(int word) { return static_cast<unsigned char>(word >> 8); }
int AsSigned(int word) { return word < 32768 ? word : word - 65536; }

TEST(SensorDecoding, AnOrloVoltageIsASignedWordWithItsLowByteFirst) {
  for (int word = 0; word <= 0xFFFF; ++word) {
    const std::array<unsigned char, 3> reply = {Low(word), High(word), 0x5A};
    ASSERT_EQ(DecodeOrloVoltage(ByteView(reply)), AsSigned(word)) << word;
  }
}

TEST(SensorDecoding, AnOrloTemperatureIsAnUnsignedWordWithItsLowByteFirst) {
  for (int word = 0; word <= 0xFFFF; ++word) {
    const std::array<unsigned char, 3> reply = {Low(word), High(word), 0x5A};
    ASSERT_EQ(DecodeOrloTemperature(ByteView(reply)), word) << word;
  }
}

TEST(SensorDecoding, AnOrloFanIsAnUnsignedByte) {
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const std::array<unsigned char, 2> reply = {Low(byte), 0x5A};
    ASSERT_EQ(DecodeOrloFan(ByteView(reply)), byte);
  }
}

TEST(SensorDecoding, AMissingHighByteReadsAsZero) {
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const std::array<unsigned char, 1> reply = {Low(byte)};
    ASSERT_EQ(DecodeOrloVoltage(ByteView(reply)), byte);
    ASSERT_EQ(DecodeOrloTemperature(ByteView(reply)), byte);
  }
}

TEST(SensorDecoding, NoBytesReadAsZero) {
  EXPECT_EQ(DecodeOrloVoltage(ByteView()), 0);
  EXPECT_EQ(DecodeOrloTemperature(ByteView()), 0);
  EXPECT_EQ(DecodeOrloFan(ByteView()), 0);
  EXPECT_EQ(DecodeKestleVoltage(ByteView(), 4, 12), 0);
  EXPECT_EQ(DecodeKestleTemperature(ByteView(), 6, 6), 0);
  EXPECT_EQ(KestleReturnLength(ByteView()), 0);
}

TEST(SensorDecoding, TheReadingsThatPeopleQuote) {
  EXPECT_EQ(DecodeOrloVoltage(ByteView(std::array<unsigned char, 2>{0xF4, 0x01})), 500);
  EXPECT_EQ(DecodeOrloVoltage(ByteView(std::array<unsigned char, 2>{0x30, 0xFB})), -1232);
  EXPECT_EQ(DecodeOrloTemperature(ByteView(std::array<unsigned char, 2>{0x8C, 0x0A})), 2700);
  EXPECT_EQ(DecodeKestleVoltage(ByteView(std::array<unsigned char, 2>{0xFF, 0x38}), 0, 0), -200);
  EXPECT_EQ(DecodeKestleVoltage(ByteView(std::array<unsigned char, 2>{0x04, 0xB0}), 0, 0), 1200);
  EXPECT_EQ(DecodeKestleTemperature(ByteView(std::array<unsigned char, 1>{0xC8}), 0, 0), 200);
}

TEST(SensorDecoding, AKestleVoltageIsASignedWordWithItsHighByteFirst) {
  for (int word = 0; word <= 0xFFFF; ++word) {
    // Reading 2 of a list that begins at byte 4.
    std::array<unsigned char, 12> reply{};
    reply.fill(0x5A);
    reply[8] = High(word);
    reply[9] = Low(word);
    ASSERT_EQ(DecodeKestleVoltage(ByteView(reply), 4, 2), AsSigned(word)) << word;
  }
}

TEST(SensorDecoding, AKestleTemperatureIsAnUnsignedByte) {
  for (int byte = 0; byte <= 0xFF; ++byte) {
    // Reading 3 of a list that begins at byte 6.
    std::array<unsigned char, 12> reply{};
    reply.fill(0x5A);
    reply[9] = Low(byte);
    ASSERT_EQ(DecodeKestleTemperature(ByteView(reply), 6, 3), byte);
  }
}

TEST(SensorDecoding, AFanSpeedIsAnUnsignedWordWithItsHighByteFirst) {
  for (int word = 0; word <= 0xFFFF; ++word) {
    const std::array<unsigned char, 4> reply = {0x5A, High(word), Low(word), 0x5A};
    ASSERT_EQ(ByteView(reply).BigEndian16(1), word);
  }
}

TEST(SensorDecoding, TheLengthIsByteZero) {
  for (int byte = 0; byte <= 0xFF; ++byte) {
    const std::array<unsigned char, 2> reply = {Low(byte), 0x5A};
    ASSERT_EQ(KestleReturnLength(ByteView(reply)), byte);
  }
}

TEST(SensorDecoding, FansByLengthTruncateTowardZeroAndKeepEightBits) {
  // Below 6 the quotient is negative or zero.
  constexpr int kBelowSix[] = {253, 254, 254, 255, 255, 0};
  for (int length = 0; length < 6; ++length) {
    EXPECT_EQ(KestleFansByLength(Low(length)), kBelowSix[length]) << length;
  }
  for (int length = 6; length <= 0xFF; ++length) {
    int fans = 0;
    while (6 + 2 * (fans + 1) <= length) {
      ++fans;
    }
    EXPECT_EQ(KestleFansByLength(Low(length)), fans) << length;
  }
}

TEST(SensorDecoding, AFanListIsExpectedInTheLengthsOfItsFamilyOnly) {
  for (int length = 0; length <= 0xFF; ++length) {
    EXPECT_EQ(IsExpectedFanLength(*kTavitFamilies[0].fans, Low(length)),
              length == 16 || length == 18 || length == 22);
    EXPECT_EQ(IsExpectedFanLength(*kTavitFamilies[1].fans, Low(length)), length == 15);
    EXPECT_EQ(IsExpectedFanLength(*kTavitFamilies[2].fans, Low(length)), length == 28);
  }
}

}  // namespace
}  // namespace strake::tests
