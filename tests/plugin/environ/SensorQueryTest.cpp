// Sensors from the query to the instances, on whole servers.
#include "tests/plugin/environ/KestleCases.h"
#include "tests/plugin/environ/OrloCases.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

const Classes kSensors = {"VELKSG_SP_NumericSensor"};

// The beginnings and ends of the readers and exporters, in order.
Lines Steps(const Recorder& record) {
  return record.Beginning({"log 4 GetOrlo", "log 4 GetKestle", "log 4 Export"});
}

Lines StepLines(std::initializer_list<const char*> names) {
  Lines lines;
  for (const char* const name : names) {
    lines.push_back(std::string("log 4 ") + name + "() entered.");
    lines.push_back(std::string("log 4 ") + name + "() completed.");
  }
  return lines;
}

TEST(SensorQuery, EveryCardIsReadBeforeAnythingIsPublished) {
  Scenario scenario = Scenario::Orlo(2);
  scenario.Answer("2.2.1.1", Bytes({0xF4, 0x01}), 0).Answer("2.2.1.1", Bytes({0xF5, 0x01}), 1);
  scenario.Answer("2.1.4.2", Bytes({0x8C, 0x0A}), 1).Answer("2.3.16", Bytes({73}), 0);
  scenario.Run(kSensors);
  EXPECT_EQ(
      Steps(scenario.Record()),
      StepLines({"GetOrloVoltage", "GetOrloTemps", "GetOrloFans", "GetOrloVoltage", "GetOrloTemps",
                 "GetOrloFans", "ExportOrloVoltages", "ExportOrloTemps", "ExportOrloFans"}));
  EXPECT_EQ(scenario.Record().Beginning(
                {"Set 1 DeviceID", "Set 2 DeviceID", "Set 3 DeviceID", "Set 4 DeviceID", "Commit"}),
            (Lines{"Set 1 DeviceID string Planar Voltage +5v-Node1", "Commit 1",
                   "Set 2 DeviceID string Planar Voltage +5v-Node2", "Commit 2",
                   "Set 3 DeviceID string DASD Sensor 2 Temperature -Node2", "Commit 3",
                   "Set 4 DeviceID string Fan 16 speed-Node1", "Commit 4"}));
}

TEST(SensorQuery, AFullCardPublishesFortyTwoInstances) {
  Scenario scenario = Scenario::Orlo();
  Lines deviceIds;
  for (const OrloCase* const orlo : kOrloCases) {
    for (const OrloSensorEntry& sensor : orlo->sensors) {
      scenario.Answer(Dotted(sensor), Bytes({1, 0}));
      deviceIds.push_back("log 4 DeviceID          = " + std::string(sensor.name) + "-Node1");
    }
  }
  scenario.Run(kSensors);
  EXPECT_EQ(scenario.Record().Beginning({"Commit"}).size(), 42U);
  EXPECT_EQ(scenario.Record().Beginning({"log 4 DeviceID"}), deviceIds);
}

TEST(SensorQuery, ACardThatDoesNotAnswerItsPresenceTestIsNotRead) {
  Scenario scenario = Scenario::Orlo(2);
  scenario.Answer("1.1", {Failure()}, 0);
  scenario.Answer("2.3.1", Bytes({50}), 0).Answer("2.3.1", Bytes({60}), 1);
  scenario.Run(kSensors);
  EXPECT_EQ(scenario.Record().Beginning({"dot 2 2.3.1 "}),
            (Lines{"dot 2 2.3.1 sp 1 size 256 -> true 1 3C"}));
  EXPECT_EQ(scenario.Record().Properties(1).at(1), "SourceNode uint8 2");
}

TEST(SensorQuery, WithAnIpClassRequestedTooNoSensorIsReadButTheExportsRun) {
  Scenario scenario = Scenario::Orlo();
  scenario.Answer("2.3.1", Bytes({50}));
  scenario.Run({"VELKSG_SP_NumericSensor", "VELKSG_ServProc_IPProtocolEndpoint"});
  EXPECT_EQ(Steps(scenario.Record()),
            StepLines({"ExportOrloVoltages", "ExportOrloTemps", "ExportOrloFans"}));
}

TEST(SensorQuery, OfATavitMachineReadsAndPublishesInItsOwnOrder) {
  Scenario scenario = Scenario::Tavit("5125-AC1");
  scenario.Kestle(166, PatternReply(16))
      .Kestle(164, PatternReply(18))
      .Kestle(162, PatternReply(28));
  scenario.Run(kSensors);
  EXPECT_EQ(Steps(scenario.Record()),
            StepLines({"GetKestleVoltage", "GetKestleFan", "GetKestleTemperature",
                       "ExportKestleVoltages", "ExportKestleFans", "ExportKestleTemps"}));
  EXPECT_EQ(scenario.Record().Beginning({"Commit"}).size(), 6U + 9 + 7);
  // Voltages 1 to 6, fans 7 to 15, temperatures 16 to 22.
  EXPECT_EQ(scenario.Record().Properties(1).at(4), "DeviceID string 3.3 Voltage-Node1");
  EXPECT_EQ(scenario.Record().Properties(7).at(4), "DeviceID string Fan 1-Node1");
  EXPECT_EQ(scenario.Record().Properties(17).at(4),
            "DeviceID string Processor Area TemperaturePCI Area TemperatureCPU 1 "
            "Temperature-Node1");
  EXPECT_EQ(scenario.Record().Properties(22).at(4), "DeviceID string DASD 2 Temperature-Node1");
}

TEST(SensorQuery, EveryTavitMachineIsReadAsItsFamily) {
  struct Machine {
    const char* type;
    int kestleType;
    int voltages, fans, temperatures;  // the families' lengths
    std::size_t instances;
  };
  constexpr Machine kMachines[] = {
      {"5120", 0, 18, 18, 10, 7 + 6 + 4}, {"5121", 0, 18, 16, 10, 7 + 5 + 4},
      {"5122", 0, 18, 22, 10, 7 + 8 + 4}, {"5123", 1, 18, 15, 12, 7 + 5 + 6},
      {"5124", 1, 18, 15, 12, 7 + 5 + 6}, {"5125", 2, 16, 28, 18, 6 + 9 + 7},
      {"5126", 3, 30, 16, 9, 13 + 0 + 4}, {"5127", 3, 30, 15, 9, 13 + 0 + 4},
      {"5128", 3, 30, 28, 9, 13 + 0 + 4},
  };
  for (const Machine& machine : kMachines) {
    Scenario scenario = Scenario::Tavit(std::string(machine.type) + "-42X");
    scenario.Kestle(166, PatternReply(machine.voltages));
    scenario.Kestle(162, PatternReply(machine.fans));
    scenario.Kestle(164, PatternReply(machine.temperatures));
    scenario.Run(kSensors);
    EXPECT_EQ(scenario.Record().Beginning({"log 3 Tavit_Type"}),
              (Lines{"log 3 Tavit_Type = " + std::to_string(machine.kestleType)}));
    EXPECT_EQ(scenario.Record().Beginning({"Commit"}).size(), machine.instances) << machine.type;
  }
}

TEST(SensorQuery, ATavitProcessorThatAnswersNothingIsToldAndPublishesNothing) {
  Scenario scenario = Scenario::Tavit("5120-AC1");
  scenario.Run(kSensors);
  EXPECT_EQ(scenario.Record().Beginning({"log 3 No data", "log 3 Did not", "Commit"}),
            (Lines{"log 3 No data retrieved for Kestle Voltage",
                   "log 3 No data retrieved for Kestle Fans.",
                   "log 3 No data retrieved for Kestle Temperature"}));
  EXPECT_EQ(scenario.Record().Beginning({"log 3 Complete collection of Tavit data."}).size(), 1U);
}

}  // namespace
}  // namespace strake::tests
