// Sensor records become numeric-sensor instances: the trail, the properties in
// their order, and what happens when the host does not play along.
#include "tests/plugin/environ/SensorBench.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using Records = std::vector<SensorRecord>;

TEST(SensorExport, OneRecordIsPublishedWithItsWholeTrail) {
  SensorBench bench(Scenario::Orlo().Answer("2.2.1.1", Bytes({0xF4, 0x01})));
  bench.collector.GetOrloVoltage();
  bench.record.Forget();
  bench.collector.ExportOrloVoltages();
  EXPECT_EQ(bench.record.All(), (Lines{
                                    "log 4 ExportOrloVoltages() entered.",
                                    "log 4 printSensorVector() entered.",
                                    "GetSystemName -> SRV1",
                                    "log 3 Obtained SystemName.",
                                    "log 3 SRV1",
                                    "log 4 printSensorVector() entered.",
                                    "log 4 Instance          = 0",
                                    "GetClass VELKSG_SP_NumericSensor",
                                    "CreateInstance 1 VELKSG_SP_NumericSensor",
                                    "Set 1 CreationClassName string VELKSG_SP_NumericSensor",
                                    "log 4 SourceNode        = 1",
                                    "Set 1 SourceNode uint8 1",
                                    "GetSystemCreationClassName -> CIM_ComputerSystem",
                                    "Set 1 SystemCreationClassName string CIM_ComputerSystem",
                                    "Set 1 SystemName string SRV1",
                                    "log 4 DeviceID          = Planar Voltage +5v-Node1",
                                    "Set 1 DeviceID string Planar Voltage +5v-Node1",
                                    "log 4 SensorDescription = Planar Voltage +5v",
                                    "Set 1 SensorDescription string Planar Voltage +5v",
                                    "log 4 CurrentReading    = 500",
                                    "Set 1 CurrentReading sint32 500",
                                    "log 4 BaseUnits         = 5",
                                    "Set 1 BaseUnits uint16 5",
                                    "log 4 UnitModifier      = -2",
                                    "Set 1 UnitModifier sint32 -2",
                                    "Commit 1",
                                    "log 4 printSensorVector() completed.",
                                    "log 4 ExportOrloVoltages() completed.",
                                }));
}

TEST(SensorExport, EachExporterOfAFreshCollectorAsksForTheNameAndCreatesNothing) {
  struct Exporter {
    const char* name;
    void (TSPEnviron::*run)();
  };
  constexpr Exporter kExporters[] = {
      {"ExportOrloVoltages", &TSPEnviron::ExportOrloVoltages},
      {"ExportOrloTemps", &TSPEnviron::ExportOrloTemps},
      {"ExportOrloFans", &TSPEnviron::ExportOrloFans},
      {"ExportKestleVoltages", &TSPEnviron::ExportKestleVoltages},
      {"ExportKestleTemps", &TSPEnviron::ExportKestleTemps},
      {"ExportKestleFans", &TSPEnviron::ExportKestleFans},
  };
  SensorBench bench(Scenario::Orlo());
  for (const Exporter& exporter : kExporters) {
    bench.record.Forget();
    (bench.collector.*exporter.run)();
    EXPECT_EQ(bench.record.All(), (Lines{
                                      std::string("log 4 ") + exporter.name + "() entered.",
                                      "log 4 printSensorVector() entered.",
                                      "GetSystemName -> SRV1",
                                      "log 3 Obtained SystemName.",
                                      "log 3 SRV1",
                                      "log 4 printSensorVector() entered.",
                                      "log 4 printSensorVector() completed.",
                                      std::string("log 4 ") + exporter.name + "() completed.",
                                  }));
  }
}

// Each exporter publishes its own list, told apart by units and node.
TEST(SensorExport, EachExporterPublishesItsOwnList) {
  Scenario scenario = Scenario::Orlo();
  scenario.server.sp.kind = platform::SpKind::Both;
  scenario.Answer("2.2.1.1", Bytes({1, 0})).Answer("2.1.1.1", Bytes({2, 0}));
  scenario.Answer("2.3.1", Bytes({3}));
  scenario.Kestle(166, Bytes({16, 0, 0, 0, 0, 4}));
  scenario.Kestle(164, Bytes({9, 0, 0, 0, 0, 5}));
  scenario.Kestle(162, Bytes({15, 0, 0, 0, 0, 0, 6}));
  SensorBench bench(scenario);
  bench.collector.GetOrloVoltage();
  bench.collector.GetOrloTemps();
  bench.collector.GetOrloFans();
  bench.collector.GetKestleVoltage(2);
  bench.collector.GetKestleTemperature(3);
  bench.collector.GetKestleFan(1);
  struct Exporter {
    void (TSPEnviron::*run)();
    const char* firstReading;
    std::size_t instances;
  };
  constexpr Exporter kExporters[] = {
      {&TSPEnviron::ExportOrloVoltages, " CurrentReading sint32 1", 1},
      {&TSPEnviron::ExportOrloTemps, " CurrentReading sint32 2", 1},
      {&TSPEnviron::ExportOrloFans, " CurrentReading sint32 3", 1},
      {&TSPEnviron::ExportKestleVoltages, " CurrentReading sint32 4", 6},
      {&TSPEnviron::ExportKestleTemps, " CurrentReading sint32 5", 4},
      {&TSPEnviron::ExportKestleFans, " CurrentReading sint32 6", 5},
  };
  std::size_t instance = 1;
  for (const Exporter& exporter : kExporters) {
    bench.record.Forget();
    (bench.collector.*exporter.run)();
    const std::string reading = "Set " + std::to_string(instance) + exporter.firstReading;
    EXPECT_EQ(bench.record.Beginning({reading}), Lines{reading});
    EXPECT_EQ(bench.record.Beginning({"Commit"}).size(), exporter.instances);
    instance += exporter.instances;
  }
}

TEST(SensorExport, RecordsArePublishedInTheirOrderWithTheirOwnValues) {
  const Records records = {
      {2, 12, 2700, 2, -2, "DASD Sensor 2 Temperature "},
      {3, -1232, 5, -2, "-12 Voltage"},
      {0, 65535, 19, 0, "Fan 1"},
  };
  SensorBench bench(Scenario::Orlo());
  bench.collector.printSensorVector(records);
  const Lines identity = {"CreationClassName string VELKSG_SP_NumericSensor", "SourceNode uint8 1",
                          "SystemCreationClassName string CIM_ComputerSystem",
                          "SystemName string SRV1"};
  Lines first = identity;
  first.at(1) = "SourceNode uint8 3";
  Append(first, {"DeviceID string DASD Sensor 2 Temperature -Node3",
                 "SensorDescription string DASD Sensor 2 Temperature ",
                 "CurrentReading sint32 2700", "BaseUnits uint16 2", "UnitModifier sint32 -2"});
  EXPECT_EQ(bench.record.Properties(1), first);
  Lines second = identity;
  Append(second, {"DeviceID string -12 Voltage-Node1", "SensorDescription string -12 Voltage",
                  "CurrentReading sint32 -1232", "BaseUnits uint16 5", "UnitModifier sint32 -2"});
  EXPECT_EQ(bench.record.Properties(2), second);
  Lines third = identity;
  Append(third, {"DeviceID string Fan 1-Node1", "SensorDescription string Fan 1",
                 "CurrentReading sint32 65535", "BaseUnits uint16 19", "UnitModifier sint32 0"});
  EXPECT_EQ(bench.record.Properties(3), third);
  EXPECT_EQ(bench.record.Beginning({"log 4 Instance ", "Commit"}),
            (Lines{"log 4 Instance          = 12", "Commit 1", "log 4 Instance          = 3",
                   "Commit 2", "log 4 Instance          = 0", "Commit 3"}));
}

TEST(SensorExport, TheNameIsAskedOncePerCallAndTheCreationClassOncePerRecord) {
  const Records records(3, SensorRecord(0, 1, 2, 0, "Fan 1"));
  SensorBench bench(Scenario::Orlo());
  bench.collector.printSensorVector(records);
  EXPECT_EQ(bench.record.Beginning({"GetSystemName"}).size(), 1U);
  EXPECT_EQ(bench.record.Beginning({"GetSystemCreationClassName"}).size(), 3U);
  EXPECT_EQ(bench.record.Beginning({"GetClass"}).size(), 3U);
}

TEST(SensorExport, TheSourceNodeIsTheNodePlusOneInEightBits) {
  struct NodeCase {
    std::uint16_t node;
    int sourceNode;
  };
  for (const NodeCase& nodeCase : {NodeCase{0, 1}, NodeCase{1, 2}, NodeCase{254, 255},
                                   NodeCase{255, 0}, NodeCase{256, 1}, NodeCase{65535, 0}}) {
    const std::string number = std::to_string(nodeCase.sourceNode);
    SensorBench bench(Scenario::Orlo());
    bench.collector.printSensorVector({SensorRecord(nodeCase.node, 0, 7, 65, 0, "Fan 01 speed")});
    EXPECT_EQ(bench.record.Beginning({"log 4 SourceNode", "Set 1 SourceNode", "Set 1 DeviceID"}),
              (Lines{"log 4 SourceNode        = " + number, "Set 1 SourceNode uint8 " + number,
                     "Set 1 DeviceID string Fan 01 speed-Node" + number}));
  }
}

TEST(SensorExport, RecordsOfOneDescriptionAndNodeShareTheirDeviceId) {
  const Records records = {{0, 1, 19, 0, "Fan 1"}, {1, 2, 19, 0, "Fan 1"}};
  SensorBench bench(Scenario::Orlo());
  bench.collector.printSensorVector(records);
  EXPECT_EQ(bench.record.Beginning({"Set 1 DeviceID", "Set 2 DeviceID", "Commit"}),
            (Lines{"Set 1 DeviceID string Fan 1-Node1", "Commit 1",
                   "Set 2 DeviceID string Fan 1-Node1", "Commit 2"}));
}

}  // namespace
}  // namespace strake::tests
