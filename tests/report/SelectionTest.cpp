// What a selection leaves of a collection.
#include "report/Selection.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::Collected;
using report::Finding;
using report::FindingCode;
using report::Selection;
using report::SensorKind;
using report::Severity;

cim::StoredInstance Interface(std::uint8_t node, const std::string& host) {
  return Instance("VELKSG_ServProc_IPProtocolEndpoint",
                  {{"SourceNode", Node(node)}, {"HostName", host}});
}

Collected TwoNodes() {
  return {.facts = SomeFacts(),
          .instances = {Interface(1, "a"), Sensor(1, "Fan 1", 1, 65, 0), Interface(2, "b"),
                        Sensor(2, "Fan 2", 2, 65, 0), Instance("VELKSG_SP_ComputerSystem", {})},
          .processors = {{1, report::Answer::Yes}, {2, report::Answer::Yes}},
          .silentSensors = {{1, "Fan 3", SensorKind::Fan}, {2, "CPU Vtt", SensorKind::Voltage}},
          .findings = {{Severity::Warning, FindingCode::SensorUnanswered, 1, "Fan 3"},
                       {Severity::Warning, FindingCode::SensorUnanswered, 2, "CPU Vtt"},
                       {Severity::Warning, FindingCode::CommandUnanswered, 2, "4.4.1"},
                       {Severity::Info, FindingCode::Held, {}, "held"}}};
}

// A line each: what is left of instances, processors, silent sensors, findings.
std::string Left(const Selection& selection, Collected collected = TwoNodes()) {
  report::Select(collected, selection);
  std::string left;
  for (const cim::StoredInstance& instance : collected.instances) {
    const cim::Value* const name =
        cim::FindValue(instance, report::IsSensor(instance) ? "SensorDescription" : "HostName");
    left += (name == nullptr ? "system" : cim::ToText(*name)) + " ";
  }
  left += "|";
  for (const report::Processor& processor : collected.processors) {
    left += " " + std::to_string(processor.number);
  }
  left += " |";
  for (const report::SilentSensor& silent : collected.silentSensors) {
    left += " " + silent.name;
  }
  left += " |";
  for (const Finding& finding : collected.findings) {
    left += " " + finding.text;
  }
  return left;
}

report::PropertyFilter Filter(const char* className, const char* property, const char* glob) {
  const auto* const schema = cim::FindSchemaClass(className);
  return {schema, cim::FindSchemaProperty(*schema, property), glob};
}

TEST(Selection, LeavesEverythingWhenNothingIsSelected) {
  EXPECT_EQ(Left({}), "a Fan 1 b Fan 2 system | 1 2 | Fan 3 CPU Vtt | Fan 3 CPU Vtt 4.4.1 held");
}

TEST(Selection, LeavesOneServiceProcessor) {
  EXPECT_EQ(Left({.node = 1}), "a Fan 1 | 1 | Fan 3 | Fan 3 held");
  EXPECT_EQ(Left({.node = 2}), "b Fan 2 | 2 | CPU Vtt | CPU Vtt 4.4.1 held");
}

TEST(Selection, TellsOfAServiceProcessorThatWasNotFound) {
  EXPECT_EQ(Left({.node = 3}), "| | | held SP 3 was not found");
  Collected collected = TwoNodes();
  report::Select(collected, {.node = 3});
  EXPECT_EQ(collected.findings.back(),
            (Finding{Severity::Warning, FindingCode::NoSp, 3, "SP 3 was not found"}));
  // Where none is known, another finding says why.
  Collected none = {.findings = {{Severity::Critical, FindingCode::NotCommunicating, {}, "no"}}};
  EXPECT_EQ(Left({.node = 1}, none), "| | | no");
}

TEST(Selection, LeavesSensorsByTheirNamesAndOtherClassesAlone) {
  EXPECT_EQ(Left({.sensor = "fan ?"}), "a Fan 1 b Fan 2 system | 1 2 | Fan 3 | Fan 3 4.4.1 held");
  EXPECT_EQ(Left({.sensor = "*2"}), "a b Fan 2 system | 1 2 | | 4.4.1 held");
  EXPECT_EQ(Left({.sensor = ""}), "a b system | 1 2 | | 4.4.1 held");
}

TEST(Selection, KnowsNamesWithoutTheBlanksAtTheirEnd) {
  const Collected collected{.facts = SomeFacts(),
                            .instances = {Sensor(1, "Fan 1 ", 1, 65, 0)},
                            .silentSensors = {{1, "Fan 2 ", SensorKind::Fan}}};
  EXPECT_EQ(Left({.sensor = "Fan ?"}, collected), "Fan 1  | | Fan 2  |");
  EXPECT_EQ(Left({.sensor = "Fan ? "}, collected), "| | |");
}

// A sensor that answered at another time is none of the silent ones.
TEST(Selection, LeavesAFindingOfSensorsUnlessTheyAreSelected) {
  Collected collected = TwoNodes();
  collected.silentSensors.clear();
  const auto network = Filter("VELKSG_ServProc_IPProtocolEndpoint", "HostName", "*");
  EXPECT_EQ(Left({}, collected), "a Fan 1 b Fan 2 system | 1 2 | | Fan 3 CPU Vtt 4.4.1 held");
  EXPECT_EQ(Left({.node = 1, .filters = {network}}, collected), "a Fan 1 | 1 | | Fan 3 held");
  EXPECT_EQ(Left({.sensor = "*"}, collected), "a Fan 1 b Fan 2 system | 1 2 | | 4.4.1 held");
}

TEST(Selection, LeavesTheInstancesOfAClassWhosePropertyFits) {
  const auto network = Filter("VELKSG_ServProc_IPProtocolEndpoint", "HostName", "A");
  EXPECT_EQ(Left({.filters = {network}}),
            "a Fan 1 Fan 2 system | 1 2 | Fan 3 CPU Vtt | Fan 3 CPU Vtt 4.4.1 held");
  const auto node = Filter("VELKSG_ServProc_IPProtocolEndpoint", "SourceNode", "2");
  EXPECT_EQ(Left({.filters = {node}}),
            "Fan 1 b Fan 2 system | 1 2 | Fan 3 CPU Vtt | Fan 3 CPU Vtt 4.4.1 held");
  EXPECT_EQ(Left({.filters = {network, node}}),
            "Fan 1 Fan 2 system | 1 2 | Fan 3 CPU Vtt | Fan 3 CPU Vtt 4.4.1 held");
  // One that lacks the property does not fit.
  EXPECT_EQ(Left({.filters = {Filter("VELKSG_SP_ComputerSystem", "Name", "*")}}),
            "a Fan 1 b Fan 2 | 1 2 | Fan 3 CPU Vtt | Fan 3 CPU Vtt 4.4.1 held");
}

TEST(Selection, TakesFiltersOfSensorsForSilentOnesThatHaveANameAlone) {
  EXPECT_EQ(Left({.filters = {Filter("VELKSG_SP_NumericSensor", "SensorDescription", "*n*")}}),
            "a Fan 1 b Fan 2 system | 1 2 | Fan 3 | Fan 3 4.4.1 held");
  EXPECT_EQ(Left({.filters = {Filter("VELKSG_SP_NumericSensor", "SourceNode", "2")}}),
            "a b Fan 2 system | 1 2 | CPU Vtt | CPU Vtt 4.4.1 held");
  EXPECT_EQ(Left({.filters = {Filter("VELKSG_SP_NumericSensor", "CurrentReading", "*")}}),
            "a Fan 1 b Fan 2 system | 1 2 | | 4.4.1 held");
}

}  // namespace
}  // namespace strake::tests
