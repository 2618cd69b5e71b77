// The instances in the Managed Object Format.
#include "report/MofReport.h"
#include "tests/report/Instances.h"
#include "tests/support/ReadBack.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string MofOf(const report::Report& report) { return Written(report::WriteMof, report); }

constexpr const char* kHead =
    "// Collected by strake 1.2.3 at 2024-03-18T09:41:07Z\n"
    "// Server: rack7 (orlo)\n";

TEST(MofReport, WritesInstancesWithTheirPropertiesInOrder) {
  const std::vector<cim::StoredInstance> instances = {
      Instance("VELKSG_SP_ComputerSystem",
               {{"SourceNode", Node(255)}, {"Name", "SRV1:\"Node\"\n0"}, {"SPClock", SomeTime()}}),
      Sensor(2, "Fan", -3, 65, -2),
      Instance("VELKSG_SP_ComputerSystem", {}),
  };
  EXPECT_EQ(MofOf(ReportOf(instances)), std::string(kHead) + R"(
instance of VELKSG_SP_ComputerSystem {
    SourceNode = 255;
    Name = "SRV1:\"Node\"\n0";
    SPClock = "20100615134530.000000-120";
};

instance of VELKSG_SP_NumericSensor {
    CreationClassName = "VELKSG_SP_NumericSensor";
    SourceNode = 2;
    DeviceID = "Fan-Node2";
    SensorDescription = "Fan";
    CurrentReading = -3;
    BaseUnits = 65;
    UnitModifier = -2;
};

instance of VELKSG_SP_ComputerSystem {
};
)");
}

TEST(MofReport, WithoutInstancesSaysWhatItIsOf) {
  EXPECT_EQ(MofOf(ReportOf({})), kHead);
  report::CollectionFacts facts = SomeFacts();
  facts.server.description = "two\nlines\r\xE2\x80\xA8*/ \\";
  EXPECT_EQ(MofOf(ReportOf({}, facts)),
            "// Collected by strake 1.2.3 at 2024-03-18T09:41:07Z\n"
            "// Server: rack7 (orlo): two\\nlines\\r\\xE2\\x80\\xA8*/ \\\n");
}

TEST(MofReport, SaysASensorsStateBeforeIt) {
  const report::Report report({.facts = SomeFacts(), .instances = {Sensor(1, "A", 51, 2, 0)}},
                              report::Secrets::Masked, UpperLimits(40, 50));
  EXPECT_EQ(MofOf(report).find("\n// State: critical\ninstance of VELKSG_SP_NumericSensor {\n"),
            std::string_view(kHead).size());
}

TEST(MofReport, WritesAValueAsTheTypeThatItHas) {
  const auto mof = ReadMof(MofOf(ReportOf({Instance(
      "VELKSG_SP_ComputerSystem", {{"SourceNode", "1"}, {"Name", 2}, {"SPClock", "\"now\""}})})));
  EXPECT_EQ(mof.instances.at(0).at("properties").dump(),
            R"({"SourceNode":"1","Name":2,"SPClock":"\"now\""})");
}

}  // namespace
}  // namespace strake::tests
