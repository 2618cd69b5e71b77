// The voltage and temperature readers: each family with its own length, with
// every other one, and with another family's reply.
#include "tests/plugin/environ/KestleCases.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::Reply;

struct Family {
  const KestleCase& list;
  unsigned int selector;
  const char* name;
  int length;
  std::size_t firstByte;
  Lines sensors;
};

bool IsVoltage(const Family& family) { return &family.list == &kVoltageCase; }

const std::vector<Family>& Families() {
  static const std::vector<Family> kFamilies = {
      {kVoltageCase,
       0,
       "Pilkar/Mossel/Fendra",
       18,
       4,
       {"12 Voltage", "5 Voltage", "3.3 Voltage", "2.5 Voltage", "1.5 Voltage", "1.25 Voltage",
        "CPU Core Voltage"}},
      {kVoltageCase,
       1,
       "Tessil",
       18,
       4,
       {"12 Voltage", "-12 Voltage", "5 Voltage", "3.3 Voltage", "2.5 Voltage",
        "CPU 1 Core Voltage", "CPU 2 Core Voltage"}},
      {kVoltageCase,
       2,
       "Nembro",
       16,
       4,
       {"3.3 Voltage", "2.5 Voltage", "CPU Core Voltage", "5 Voltage", "12 Voltage",
        "-12 Voltage"}},
      {kVoltageCase,
       3,
       "Blade",
       30,
       4,
       {"12 Voltage", "5 Voltage", "3.3 Voltage", "2.5 Voltage", "1.5 Voltage", "1.25 Voltage",
        "18V Remote", "12V Remote", "5V Remote", "3.3V Remote", "2.5V Remote", "1.8V Remote",
        "CPU Core Voltage"}},
      {kTemperatureCase,
       0,
       "Pilkar/Mossel/Fendra",
       10,
       6,
       {"Ambient Temperature", "CPU 1 Temperature", "CPU 2 Temperature", "DASD 1 Temperature"}},
      {kTemperatureCase,
       1,
       "Tessil",
       12,
       6,
       {"Environment Temperature", "CPU 1 Temperature", "CPU 2 Temperature", "DASD 1 Temperature",
        "DASD 2 Temperature", "DASD 3 Temperature"}},
      {kTemperatureCase,
       2,
       "Nembro",
       18,
       6,
       {"Ambient Temperature", "Processor Area TemperaturePCI Area TemperatureCPU 1 Temperature",
        "CPU 2 Temperature", "CPU 3 Temperature", "CPU 4 Temperature", "DASD 1 Temperature",
        "DASD 2 Temperature"}},
      {kTemperatureCase,
       3,
       "Blade",
       9,
       5,
       {"Ambient Temperature", "CPU 1 Temperature", "CPU 2 Temperature", "DASD 1 Temperature"}},
  };
  return kFamilies;
}

int ExpectedReading(const Family& family, const std::string& reply, std::size_t i) {
  if (!IsVoltage(family)) {
    return BufferByte(reply, family.firstByte + i);
  }
  const int word = BufferWord(reply, family.firstByte + 2 * i);
  return word < 32768 ? word : word - 65536;
}

void ExpectReadings(const Family& family, const Reply& reply) {
  SCOPED_TRACE(std::string(family.list.reader) + " " + family.name + ": " +
               std::to_string(reply.bytes.size()) + " bytes, length " +
               std::to_string(reply.length));
  Lines lines;
  Lines records;
  for (std::size_t i = 0; i < family.sensors.size(); ++i) {
    const std::string& sensor = family.sensors[i];
    const int reading = ExpectedReading(family, reply.bytes, i);
    lines.push_back("3 " + sensor + " = " + std::to_string(reading));
    records.push_back(
        RecordText(0, i, reading, IsVoltage(family) ? 5 : 2, IsVoltage(family) ? -2 : 0, sensor));
  }
  SensorBench bench(Answering(family.list, reply));
  EXPECT_EQ(family.list.Read(bench.collector, family.selector), 0);
  EXPECT_EQ(bench.record.Logs(), DataTrail(family.list, reply, lines));
  EXPECT_EQ(RecordTexts(family.list.Records(bench.collector)), records);
}

void ExpectRefusal(const Family& family, const Reply& reply) {
  SCOPED_TRACE(std::string(family.list.reader) + " " + family.name + ": byte 0 is " +
               std::to_string(BufferByte(reply.bytes, 0)));
  SensorBench bench(Answering(family.list, reply));
  EXPECT_EQ(family.list.Read(bench.collector, family.selector), 0);
  EXPECT_EQ(bench.record.Logs(),
            DataTrail(family.list, reply,
                      {std::string("3 Did not obtain correct returnLength for ") + family.name +
                       " " + family.list.command}));
  EXPECT_EQ(family.list.Records(bench.collector).size(), 0U);
}

TEST(KestleLists, EveryFamilysReplyOfTheRightLengthIsReadWhole) {
  for (const Family& family : Families()) {
    const auto length = static_cast<std::size_t>(family.length);
    ExpectReadings(family, Success(PatternReply(family.length, length)));
    ExpectReadings(family, Success(PatternReply(family.length)));
  }
}

TEST(KestleLists, EveryOtherLengthIsRefused) {
  for (const Family& family : Families()) {
    for (int length = 0; length <= 255; ++length) {
      if (length != family.length) {
        ExpectRefusal(family, Success(PatternReply(length)));
      }
    }
  }
}

TEST(KestleLists, AnotherFamilysReplyIsRefusedUnlessItIsAsLong) {
  for (const Family& family : Families()) {
    for (const Family& other : Families()) {
      if (&other.list != &family.list) {
        continue;
      }
      const Reply reply =
          Success(PatternReply(other.length, static_cast<std::size_t>(other.length)));
      if (other.length == family.length) {
        ExpectReadings(family, reply);  // under the asked family's names
      } else {
        ExpectRefusal(family, reply);
      }
    }
  }
}

// The SP may report any length: what counts is byte 0, and bytes that did not
// come are zeros.
TEST(KestleLists, RepliesOfEveryReportedLengthReadTheClearedBuffer) {
  for (const Family& family : Families()) {
    for (std::size_t size = 1; size <= 300; ++size) {
      ExpectReadings(family, Success(PatternReply(family.length, size)));
    }
  }
}

TEST(KestleLists, ReportedLengthsThatAreNotTrueChangeNoReading) {
  for (const Family& family : Families()) {
    for (const std::size_t size : {1U, 5U, 7U, 255U, 300U}) {
      for (const int reported :
           {-2147483647 - 1, -256, -1, 1, 2, 254, 255, 256, 1000, 2147483647}) {
        ExpectReadings(family, Reported(PatternReply(family.length, size), reported));
      }
    }
  }
}

TEST(KestleLists, ALengthWithoutBytesIsTheWrongLength) {
  for (const Family& family : Families()) {
    ExpectRefusal(family, Reported("", 18));
    ExpectRefusal(family, Reported("", -1));
  }
}

TEST(KestleLists, ReadingTwiceDoublesTheRecordsAndABadReplyWithdrawsNone) {
  for (const Family& family : Families()) {
    Scenario scenario = Scenario::Tavit("5120-AC1");
    const Reply good = Success(PatternReply(family.length));
    scenario.server.sp.kestleCommands[static_cast<unsigned char>(family.list.code)] = {
        good, good, Success(PatternReply(0))};
    SensorBench bench(scenario);
    for (int i = 0; i < 3; ++i) {
      family.list.Read(bench.collector, family.selector);
    }
    EXPECT_EQ(family.list.Records(bench.collector).size(), 2 * family.sensors.size());
  }
}

}  // namespace
}  // namespace strake::tests
