// Instances of which not everything is there, or not as the schema has it.
#include "report/InstanceText.h"
#include "report/Sensor.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(OddInstances, HaveNoSourceNodeWhenItIsOfAnotherType) {
  EXPECT_EQ(report::SourceNode(Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", Node(2)}})), 2);
  EXPECT_EQ(report::SourceNode(Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", 2}})),
            std::nullopt);
  EXPECT_EQ(report::SourceNode(Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", "2"}})),
            std::nullopt);
  EXPECT_EQ(report::SourceNode(Instance("VELKSG_SP_ComputerSystem", {})), std::nullopt);
}

TEST(OddInstances, ReadAsTheyAreWithoutAModifier) {
  const auto text = [](const Properties& properties) {
    const cim::StoredInstance instance = Instance("VELKSG_SP_NumericSensor", properties);
    return report::SensorOf(instance);
  };
  const Properties bare = {{"SensorDescription", "x"}, {"CurrentReading", -503}};
  EXPECT_EQ(text(bare).reading, "-503");
  EXPECT_EQ(text(bare).unit, "");
  Properties whole = bare;
  whole.emplace_back("UnitModifier", -2);
  EXPECT_EQ(text(whole).reading, "-5.03");
  // Of another type it is none.
  Properties odd = bare;
  odd.emplace_back("UnitModifier", "-2");
  odd.emplace_back("BaseUnits", 5);
  EXPECT_EQ(text(odd).reading, "-503");
  EXPECT_EQ(text(odd).unit, "");
}

}  // namespace
}  // namespace strake::tests
