// The Orlo readers: what they send, log and record, sensor by sensor.
#include "tests/plugin/environ/OrloCases.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using platform::BoundaryCall;
using platform::Fault;

TEST(OrloReaders, ReadEverySensorInTableOrderWithItsWholeTrail) {
  for (const OrloCase* const orlo : kOrloCases) {
    Scenario scenario = Scenario::Orlo();
    Lines trail = {std::string("4 ") + orlo->reader + "() entered."};
    Lines records;
    Lines sends;
    for (std::size_t i = 0; i < orlo->sensors.size(); ++i) {
      const OrloSensorEntry& sensor = orlo->sensors[i];
      const int reading = 10 + static_cast<int>(i);
      scenario.Answer(Dotted(sensor), Bytes({reading, 0}));
      Append(trail, Answered(Dotted(sensor), 2));
      trail.push_back(std::string("3 ") + sensor.name + " = " + std::to_string(reading));
      records.push_back(RecordText(0, i, reading, orlo->units, orlo->modifier, sensor.name));
      static constexpr char kDigits[] = "0123456789ABCDEF";
      sends.push_back("dot 2 " + Dotted(sensor) + " sp 0 size 256 -> true 2 " +
                      kDigits[reading / 16] + kDigits[reading % 16] + "00");
    }
    trail.push_back(std::string("4 ") + orlo->reader + "() completed.");

    SensorBench bench(scenario);
    EXPECT_EQ(orlo->Read(bench.collector), 0);
    EXPECT_EQ(bench.record.Logs(), trail);
    EXPECT_EQ(bench.record.Beginning({"dot "}), sends);
    EXPECT_EQ(RecordTexts(orlo->Records(bench.collector)), records);
  }
}

TEST(OrloReaders, TheVoltageTrailReadsAsPeopleKnowIt) {
  SensorBench bench(Scenario::Orlo()
                        .Answer("2.2.1.1", Bytes({0xF4, 0x01}))
                        .Answer("2.2.1.4", Bytes({0x30, 0xFB})));
  bench.collector.GetOrloVoltage();
  const Lines logs = bench.record.Logs();
  ASSERT_EQ(logs.size(), 2U + 2 * 4 + 11 * 5);
  EXPECT_EQ(
      Lines(logs.begin(), logs.begin() + 10),
      (Lines{"4 GetOrloVoltage() entered.", "4 sendOrloCommand entered.",
             "4 Sent Orlo command: 2.2.1.1. Status: ADDR. ReturnDataLen:2.",
             "4 sendOrloCommand completed.", "3 Planar Voltage +5v = 500",
             "4 sendOrloCommand entered.",
             "4 Sent Orlo command: 2.2.1.2. Status: ADDR. ReturnDataLen:0.",
             ("3 Unable to communicate with system management hardware for dot command: "
              "2.2.1.2."),
             "4 sendOrloCommand completed.", "3 No data retrieved for Planar Voltage +3.3v"}));
  EXPECT_EQ(logs.at(18), "3 Planar Voltage -12v = -1232");
  EXPECT_EQ(logs.back(), "4 GetOrloVoltage() completed.");
}

TEST(OrloReaders, SensorsThatDoNotAnswerLeaveAGapInTheIndices) {
  SensorBench bench(Scenario::Orlo()
                        .Answer("2.1.1.1", Bytes({0x8C, 0x0A}))
                        .Answer("2.1.2.4", Bytes({0x10, 0x27}))
                        .Answer("2.1.4.2", Bytes({0xFF, 0xFF})));
  EXPECT_EQ(bench.collector.GetOrloTemps().Code(), 0);
  EXPECT_EQ(RecordTexts(bench.collector.OrloTemps()),
            (Lines{"node 0 index 0 reading 2700 units 2 modifier -2 [Center card temperature]",
                   "node 0 index 9 reading 10000 units 2 modifier -2 [CPU 4 temperature]",
                   ("node 0 index 12 reading 65535 units 2 modifier -2 "
                    "[DASD Sensor 2 Temperature ]")}));
}

TEST(OrloReaders, ACardThatAnswersNothingYieldsALineForEverySensorAndNoRecords) {
  for (const OrloCase* const orlo : kOrloCases) {
    SensorBench bench(Scenario::Orlo());
    EXPECT_EQ(orlo->Read(bench.collector), 0);
    Lines trail = {std::string("4 ") + orlo->reader + "() entered."};
    for (const OrloSensorEntry& sensor : orlo->sensors) {
      Append(trail, Unanswered(Dotted(sensor)));
      trail.push_back(std::string("3 No data retrieved for ") + sensor.name);
    }
    trail.push_back(std::string("4 ") + orlo->reader + "() completed.");
    EXPECT_EQ(bench.record.Logs(), trail);
    EXPECT_EQ(orlo->Records(bench.collector).size(), 0U);
  }
}

TEST(OrloReaders, ASuccessfulSendWithoutBytesIsNoDataAndNoFailedCommand) {
  SensorBench bench(Scenario::Orlo());
  bench.record.Inject(BoundaryCall::DotSend, Fault::SendIsEmpty);
  EXPECT_EQ(bench.collector.GetOrloFans().Code(), 0);
  Lines trail = {"4 GetOrloFans() entered."};
  for (const OrloSensorEntry& sensor : kOrloFans) {
    Append(trail, Answered(Dotted(sensor), 0));
    trail.push_back(std::string("3 No data retrieved for ") + sensor.name);
  }
  trail.emplace_back("4 GetOrloFans() completed.");
  EXPECT_EQ(bench.record.Logs(), trail);
  EXPECT_EQ(bench.collector.OrloFans().size(), 0U);
}

TEST(OrloReaders, AFailedSendIsNoDataWhateverItBrought) {
  SensorBench bench(Scenario::Orlo().Answer("2.3.4", {Failure(Bytes({73, 0}), 2)}));
  bench.collector.GetOrloFans();
  const Lines logs = bench.record.Logs();
  Lines expected = Unanswered("2.3.4", 2);
  expected.emplace_back("3 No data retrieved for Fan 04 speed");
  EXPECT_EQ(Lines(logs.begin() + 16, logs.begin() + 21), expected);
  EXPECT_EQ(bench.collector.OrloFans().size(), 0U);
}

TEST(OrloReaders, FanSixteenHasAThreeByteIdentifierAndDeviceIndexFifteen) {
  SensorBench bench(Scenario::Orlo().Answer("2.3.16", Bytes({73})));
  bench.collector.GetOrloFans();
  EXPECT_EQ(bench.record.Beginning({"dot 2 2.3.16 "}),
            (Lines{"dot 2 2.3.16 sp 0 size 256 -> true 1 49"}));
  EXPECT_EQ(RecordTexts(bench.collector.OrloFans()),
            (Lines{"node 0 index 15 reading 73 units 65 modifier 0 [Fan 16 speed]"}));
}

TEST(OrloReaders, TheCurrentNodeIsAddressedAndRecorded) {
  Scenario scenario = Scenario::Orlo(3);
  scenario.Answer("2.3.1", Bytes({10}), 0).Answer("2.3.1", Bytes({30}), 2);
  SensorBench bench(scenario);
  for (unsigned char node = 0; node < 3; ++node) {
    bench.collector.SetNode(node);
    bench.collector.GetOrloFans();
  }
  EXPECT_EQ(
      bench.record.Beginning({"dot 2 2.3.1 "}),
      (Lines{"dot 2 2.3.1 sp 0 size 256 -> true 1 0A", "dot 2 2.3.1 sp 1 size 256 -> false 0 ",
             "dot 2 2.3.1 sp 2 size 256 -> true 1 1E"}));
  EXPECT_EQ(RecordTexts(bench.collector.OrloFans()),
            (Lines{"node 0 index 0 reading 10 units 65 modifier 0 [Fan 01 speed]",
                   "node 2 index 0 reading 30 units 65 modifier 0 [Fan 01 speed]"}));
}

TEST(OrloReaders, CallingAReaderTwiceDoublesItsRecords) {
  SensorBench bench(
      Scenario::Orlo().Answer("2.3.2", {Success(Bytes({20})), Success(Bytes({21})), Failure()}));
  bench.collector.GetOrloFans();
  bench.collector.GetOrloFans();
  bench.collector.GetOrloFans();  // brings nothing and withdraws nothing
  EXPECT_EQ(RecordTexts(bench.collector.OrloFans()),
            (Lines{"node 0 index 1 reading 20 units 65 modifier 0 [Fan 02 speed]",
                   "node 0 index 1 reading 21 units 65 modifier 0 [Fan 02 speed]"}));
}

TEST(OrloReaders, OnAServerWithoutDotCommandsNothingIsSent) {
  SensorBench bench(Scenario::Tavit("5120-AC1"));
  EXPECT_EQ(bench.collector.GetOrloVoltage().Code(), 0);
  Lines trail = {"4 GetOrloVoltage() entered."};
  for (const OrloSensorEntry& sensor : kOrloVoltages) {
    Append(trail,
           {"4 sendOrloCommand entered.",
            "3 This command is not a valid dot command: " + Dotted(sensor) + ".",
            "4 sendOrloCommand completed.", std::string("3 No data retrieved for ") + sensor.name});
  }
  trail.emplace_back("4 GetOrloVoltage() completed.");
  EXPECT_EQ(bench.record.Logs(), trail);
  EXPECT_EQ(bench.record.Beginning({"dot "}), Lines{});
}

}  // namespace
}  // namespace strake::tests
