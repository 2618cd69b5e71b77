// The fan reader: three layouts, blades without fans, every length.
#include "tests/plugin/environ/KestleCases.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::Reply;

struct FanFamily {
  unsigned int selector;
  const char* name;
  std::vector<int> lengths;
  std::vector<std::pair<const char*, std::size_t>> headers;  // label, byte
  std::size_t firstByte;
  const char* highLabel;
  const char* lowLabel;
};

const std::vector<FanFamily>& Families() {
  static const std::vector<FanFamily> kFamilies = {
      {0,
       "Pilkar/Mossel/Fendra",
       {16, 18, 22},
       {{"Fan Speed      = ", 2}, {"Fans Expected  = ", 3}, {"Fans Installed = ", 4}},
       6,
       "  h8Data[i+6]<<8 = ",
       "  h8Data[i+7]<<8 = "},
      {1,
       "Tessil/Varnel",
       {15},
       {{"Fans Expected  = ", 2}, {"Fans Installed = ", 3}},
       5,
       "  h8Data[i+5]<<8 = ",
       "  h8Data[i+6]<<8 = "},
      {2,
       "Nembro",
       {28},
       {{"Fans Expected Nembro  = ", 4}, {"Fans Expected Rokko = ", 5}},
       10,
       "  h8Data[i+10]<<8 = ",
       "  h8Data[i+11]<<8 = "},
  };
  return kFamilies;
}

// The number in the "calculated" line, as the reader tells it of any length.
int Calculated(const FanFamily& family, int length) {
  if (family.selector == 1) {
    return 5;
  }
  if (family.selector == 2) {
    return 9;
  }
  constexpr int kBelowSix[] = {253, 254, 254, 255, 255, 0};
  return length < 6 ? kBelowSix[length] : (length - 6) / 2;
}

Lines Opening(const FanFamily& family, int length) {
  return {std::string("4 Fans for ") + family.name + ".",
          "3 Num_fans calculated = " + std::to_string(Calculated(family, length))};
}

void ExpectFans(const FanFamily& family, int length, const Reply& reply) {
  SCOPED_TRACE(std::string(family.name) + ": " + std::to_string(reply.bytes.size()) +
               " bytes, byte 0 is " + std::to_string(length));
  Lines lines = Opening(family, length);
  for (const auto& [label, byte] : family.headers) {
    lines.push_back("3 " + std::string(label) + std::to_string(BufferByte(reply.bytes, byte)));
  }
  Lines records;
  for (int i = 0; i < Calculated(family, length); ++i) {
    const std::size_t byte = family.firstByte + 2 * static_cast<std::size_t>(i);
    const std::string name = "Fan " + std::to_string(i + 1);
    const int speed = BufferWord(reply.bytes, byte);
    lines.push_back("4 i = " + std::to_string(2 * i) + family.highLabel +
                    std::to_string(BufferByte(reply.bytes, byte) * 256) + family.lowLabel +
                    std::to_string(BufferByte(reply.bytes, byte + 1)));
    lines.push_back("3 " + name + " = " + std::to_string(speed));
    records.push_back(RecordText(0, static_cast<std::size_t>(i), speed, 19, 0, name));
  }
  SensorBench bench(Answering(kFanCase, reply));
  EXPECT_EQ(bench.collector.GetKestleFan(family.selector).Code(), 0);
  EXPECT_EQ(bench.record.Logs(), DataTrail(kFanCase, reply, lines));
  EXPECT_EQ(RecordTexts(bench.collector.KestleFans()), records);
}

void ExpectRefusal(const FanFamily& family, int length, const Reply& reply) {
  SCOPED_TRACE(std::string(family.name) + ": byte 0 is " + std::to_string(length));
  Lines lines = Opening(family, length);
  lines.push_back(std::string("3 Did not obtain correct returnLength for ") + family.name +
                  " ALERT_FAN_INFORMATION");
  SensorBench bench(Answering(kFanCase, reply));
  EXPECT_EQ(bench.collector.GetKestleFan(family.selector).Code(), 0);
  EXPECT_EQ(bench.record.Logs(), DataTrail(kFanCase, reply, lines));
  EXPECT_EQ(bench.collector.KestleFans().size(), 0U);
}

bool IsExpected(const FanFamily& family, int length) {
  return std::find(family.lengths.begin(), family.lengths.end(), length) != family.lengths.end();
}

TEST(KestleFans, EveryLengthIsReadByItsFamilyAndRefusedByTheOthers) {
  for (const FanFamily& family : Families()) {
    for (int length = 0; length <= 255; ++length) {
      const Reply reply = Success(PatternReply(length));
      if (IsExpected(family, length)) {
        ExpectFans(family, length, reply);
      } else {
        ExpectRefusal(family, length, reply);
      }
    }
  }
}

TEST(KestleFans, AnotherFamilysReplyIsRefused) {
  for (const FanFamily& family : Families()) {
    for (const FanFamily& other : Families()) {
      if (&other == &family) {
        continue;
      }
      for (const int length : other.lengths) {
        ExpectRefusal(family, length,
                      Success(PatternReply(length, static_cast<std::size_t>(length))));
      }
    }
  }
}

TEST(KestleFans, RepliesOfEveryReportedLengthReadTheClearedBuffer) {
  for (const FanFamily& family : Families()) {
    for (const int length : family.lengths) {
      for (std::size_t size = 1; size <= 300; ++size) {
        ExpectFans(family, length, Success(PatternReply(length, size)));
      }
    }
  }
}

TEST(KestleFans, ReportedLengthsThatAreNotTrueChangeNoReading) {
  for (const FanFamily& family : Families()) {
    for (const int reported : {-2147483647 - 1, -1, 1, 255, 256, 1000, 2147483647}) {
      const int length = family.lengths.back();
      ExpectFans(family, length, Reported(PatternReply(length, 9), reported));
      ExpectFans(family, length, Reported(PatternReply(length, 300), reported));
    }
  }
}

TEST(KestleFans, ALengthWithoutBytesGivesTheOddNumberOfFansAndNone) {
  const Reply reply = Reported("", 18);
  SensorBench bench(Answering(kFanCase, reply));
  bench.collector.GetKestleFan(0);
  EXPECT_EQ(bench.record.Logs(),
            DataTrail(kFanCase, reply,
                      {"4 Fans for Pilkar/Mossel/Fendra.", "3 Num_fans calculated = 253",
                       ("3 Did not obtain correct returnLength for Pilkar/Mossel/Fendra "
                        "ALERT_FAN_INFORMATION")}));
}

TEST(KestleFans, LengthTwentyTwoReadsEightFansAndLengthTwentyNoneThoughSevenAreTold) {
  const FanFamily& family = Families().at(0);
  EXPECT_EQ(Calculated(family, 22), 8);
  ExpectFans(family, 22, Success(PatternReply(22, 22)));
  EXPECT_EQ(Calculated(family, 20), 7);
  ExpectRefusal(family, 20, Success(PatternReply(20, 20)));
}

TEST(KestleFans, ABladeHasNoneHoweverLongItsReply) {
  for (int length = 1; length <= 255; ++length) {
    const Reply reply = Success(PatternReply(length, static_cast<std::size_t>(length)));
    SensorBench bench(Answering(kFanCase, reply));
    EXPECT_EQ(bench.collector.GetKestleFan(3).Code(), 0);
    EXPECT_EQ(bench.record.Logs(),
              DataTrail(kFanCase, reply, {"3 No Fan information available for blades."}));
    EXPECT_EQ(bench.collector.KestleFans().size(), 0U);
  }
}

TEST(KestleFans, TheTrailOfSixteenBytesReadsAsPeopleKnowIt) {
  const std::string bytes =
      Bytes({16, 0, 60, 6, 5, 0, 0x0F, 0xA0, 0x10, 0x04, 0, 1, 0xFF, 0xFF, 0x01, 0});
  SensorBench bench(Answering(kFanCase, Success(bytes)));
  bench.collector.GetKestleFan(0);
  EXPECT_EQ(bench.record.Logs(),
            (Lines{
                "4 GetKestleFan() entered.",
                "4 sendKestleCommand entered.",
                ("4 Sending Kestle command: Length = 2, cmd = 162, expectedcmd = 162, checksum = "
                 "94, cmddataLen = 0, ack = 0, isreadflag = 1, "),
                "4 Result of Kestle cmd: Status: 1. ReturnDataLen:16.",
                "4 h8Data = 16 0 60 6 5 0 15 160 16 4 0 1 255 255 1 0 ",
                "4 sendKestleCommand completed.",
                "3 Data retrieved for Kestle Fans.",
                "4 Fans for Pilkar/Mossel/Fendra.",
                "3 Num_fans calculated = 5",
                "3 Fan Speed      = 60",
                "3 Fans Expected  = 6",
                "3 Fans Installed = 5",
                "4 i = 0  h8Data[i+6]<<8 = 3840  h8Data[i+7]<<8 = 160",
                "3 Fan 1 = 4000",
                "4 i = 2  h8Data[i+6]<<8 = 4096  h8Data[i+7]<<8 = 4",
                "3 Fan 2 = 4100",
                "4 i = 4  h8Data[i+6]<<8 = 0  h8Data[i+7]<<8 = 1",
                "3 Fan 3 = 1",
                "4 i = 6  h8Data[i+6]<<8 = 65280  h8Data[i+7]<<8 = 255",
                "3 Fan 4 = 65535",
                "4 i = 8  h8Data[i+6]<<8 = 256  h8Data[i+7]<<8 = 0",
                "3 Fan 5 = 256",
                "4 GetKestleFan() completed.",
            }));
}

}  // namespace
}  // namespace strake::tests
