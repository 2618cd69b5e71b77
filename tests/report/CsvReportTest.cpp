// One class as comma-separated values.
#include "report/CsvReport.h"
#include "tests/report/Instances.h"
#include "tests/report/RandomInstances.h"
#include "tests/support/ReadBack.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::Report;
using report::Secrets;

constexpr const char* kSensorColumns =
    "CreationClassName,SourceNode,SystemCreationClassName,SystemName,DeviceID,SensorDescription,"
    "CurrentReading,BaseUnits,UnitModifier,Reading,Unit";

std::string CsvOf(const Report& report) { return Written(report::WriteCsv, report); }

report::CollectionFacts AskedFor(const std::vector<std::string>& classes) {
  report::CollectionFacts facts = SomeFacts();
  for (const std::string& name : classes) {
    facts.classes.push_back(cim::FindSchemaClass(name));
  }
  return facts;
}

TEST(CsvReport, HasTheColumnsOfTheCatalogueAndARowForEachInstanceOfTheClass) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_SP_ComputerSystem",
               {{"SPClock", SomeTime()}, {"Name", "SRV1:Node1"}, {"SourceNode", Node(1)}}),
      Sensor(1, "Fan", 1, 65, 0),
      Instance("VELKSG_SP_ComputerSystem", {{"Name", ""}, {"SourceNode", Node(255)}}),
  };
  EXPECT_EQ(CsvOf(ReportOf(instances, AskedFor({"VELKSG_SP_ComputerSystem"}))),
            "CreationClassName,SourceNode,Name,SPClock\r\n"
            ",1,SRV1:Node1,20100615134530.000000-120\r\n"
            ",255,,\r\n");
}

TEST(CsvReport, GivesSensorsTheirReadingAndUnit) {
  const std::vector<cim::StoredInstance> instances = {
      Sensor(1, "+5v", -503, 5, -2),
      Sensor(2, "Fan 1", 40, 65, 2),
      Sensor(2, "Unheard of", 7, 20, -19),
      Sensor(3, "Huge", 7, 6, 400),
      Instance("VELKSG_SP_NumericSensor", {{"BaseUnits", Units(5)}}),
  };
  EXPECT_EQ(CsvOf(ReportOf(instances)),
            std::string(kSensorColumns) +
                "\r\nVELKSG_SP_NumericSensor,1,,,'+5v-Node1,'+5v,-503,5,-2,-5.03,V"
                "\r\nVELKSG_SP_NumericSensor,2,,,Fan 1-Node2,Fan 1,40,65,2,4000,%"
                "\r\nVELKSG_SP_NumericSensor,2,,,Unheard of-Node2,Unheard of,7,20,-19,7e-19,20"
                "\r\nVELKSG_SP_NumericSensor,3,,,Huge-Node3,Huge,7,6,400,,A"
                "\r\n,,,,,,,5,,,V\r\n");
}

TEST(CsvReport, GivesSensorsTheirStateWhereThereAreLimits) {
  const Report report({.facts = SomeFacts(),
                       .instances = {Sensor(1, "A", 40, 2, 0), Sensor(1, "B", 51, 2, 0),
                                     Instance("VELKSG_SP_NumericSensor", {})},
                       .silentSensors = {{1, "C", report::SensorKind::Fan}}},
                      Secrets::Masked, UpperLimits(50, 60));
  EXPECT_EQ(CsvOf(report), std::string(kSensorColumns) +
                               ",State"
                               "\r\nVELKSG_SP_NumericSensor,1,,,A-Node1,A,40,2,0,40,°C,ok"
                               "\r\nVELKSG_SP_NumericSensor,1,,,B-Node1,B,51,2,0,51,°C,warning"
                               "\r\n,,,,,,,,,,,\r\n");
}

TEST(CsvReport, IsOfTheFirstInstanceUnlessOneClassWasAskedFor) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_SP_ComputerSystem", {{"Name", "x"}}), Sensor(1, "Fan", 1, 65, 0)};
  const std::string systems = "CreationClassName,SourceNode,Name,SPClock\r\n,,x,\r\n";
  EXPECT_EQ(CsvOf(ReportOf(instances)), systems);
  EXPECT_EQ(
      CsvOf(ReportOf(instances, AskedFor({"VELKSG_SP_NumericSensor", "VELKSG_SP_ComputerSystem"}))),
      systems);
}

TEST(CsvReport, KnowsAClassOfAnotherCatalogueByItsName) {
  const cim::SchemaClass other = *cim::FindSchemaClass("VELKSG_SP_ComputerSystem");
  report::CollectionFacts facts = SomeFacts();
  facts.classes = {&other};
  EXPECT_EQ(CsvOf(ReportOf({Instance("VELKSG_SP_ComputerSystem", {{"Name", "x"}})}, facts)),
            "CreationClassName,SourceNode,Name,SPClock\r\n,,x,\r\n");
}

TEST(CsvReport, HasAHeaderWithoutInstances) {
  EXPECT_EQ(CsvOf(ReportOf({}, AskedFor({"VELKSG_SP_NumericSensor"}))),
            std::string(kSensorColumns) + "\r\n");
  EXPECT_EQ(CsvOf(ReportOf({})), "CreationClassName,SourceNode,Name,SPClock\r\n");
}

// But for the apostrophe before what a spreadsheet would calculate.
TEST(CsvReport, GivesHostileTextsBackInEveryColumn) {
  const std::set<std::string> formulas = {"=1+1",     "@SUM(A1)", "-cmd|' /C calc'!A0",
                                          "+41 44 1", "\t=1",     "\r=1"};
  for (const std::string& text : HostileTexts()) {
    for (const cim::StoredInstance& instance : OneOfEachClass(text)) {
      const auto rows = ReadCsv(CsvOf(ReportOf({instance}, SomeFacts(), Secrets::Shown)));
      ASSERT_EQ(rows.size(), 2U);
      ASSERT_GE(rows[0].size(), instance.schema->properties.size());
      for (std::size_t i = 0; i < instance.schema->properties.size(); ++i) {
        const bool isText = instance.schema->properties[i].type == cim::CimType::String;
        const std::string apostrophe = formulas.contains(text) ? "'" : "";
        EXPECT_EQ(rows[0][i], instance.schema->properties[i].name);
        EXPECT_EQ(rows[1][i], isText ? apostrophe + text : "");
      }
    }
  }
}

}  // namespace
}  // namespace strake::tests
