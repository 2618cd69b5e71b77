// What is marked from one round of a watch to the next.
#include "compare/Changes.h"
#include "report/TableReport.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using report::SensorKind;

struct Input {
  std::vector<cim::StoredInstance> instances;
  std::vector<report::SilentSensor> silent = {};
  std::vector<report::Finding> findings = {};
  std::chrono::seconds after{};
};

compare::Round RoundOf(const Input& input, const std::optional<report::Limits>& limits) {
  report::CollectionFacts facts = SomeFacts();
  facts.collectedAt += input.after;
  return {input.instances, report::Report({.facts = facts,
                                           .instances = input.instances,
                                           .silentSensors = input.silent,
                                           .findings = input.findings},
                                          report::Secrets::Masked, limits)};
}

// The rows that are marked, with one blank between their cells, then what the
// changes say beside them: "LINE\n...; ~changed +added -gone", new findings.
std::string Marked(const Input& before, const Input& after, double tolerance = 0,
                   const std::optional<report::Limits>& limits = {}) {
  const compare::Round one = RoundOf(before, limits);
  const compare::Round other = RoundOf(after, limits);
  const compare::Changes changes = compare::ChangesBetween(one, other, tolerance);
  report::Layout layout{.header = false};
  layout.marks = &changes.marks;
  std::string text;
  report::WriteTable(other.report, layout, [&text](std::string_view piece) { text += piece; });
  std::string marked;
  while (!text.empty()) {
    std::string line = text.substr(0, text.find('\n'));
    text.erase(0, line.size() + 1);
    if (line.find("> ") != std::string::npos) {
      for (std::size_t at = 0; (at = line.find("  ", at)) != std::string::npos;) {
        line.erase(at, 1);
      }
      marked += line + "\n";
    }
  }
  marked += ";";
  for (const std::string& name : changes.changed) {
    marked += " ~" + name;
  }
  for (const std::string& name : changes.added) {
    marked += " +" + name;
  }
  for (const std::string& name : changes.gone) {
    marked += " -" + name;
  }
  return marked + " " + std::to_string(changes.findings);
}

cim::StoredInstance Fan(int reading) { return Sensor(1, "Fan 1", reading, 65, 0); }

cim::StoredInstance Interface(const std::string& host, const std::string& mask) {
  return Instance("VELKSG_ServProc_IPProtocolEndpoint", {{"SourceNode", Node(1)},
                                                         {"instance", "1"},
                                                         {"HostName", host},
                                                         {"HostIPAddress", "192.0.2.21"},
                                                         {"HostIPSubnetMask", mask}});
}

cim::StoredInstance DialOut(const std::string& password) {
  return Instance("VELKSG_ServProc_DialProtocolEndpoint1",
                  {{"SourceNode", Node(1)}, {"Instance", "2"}, {"DialoutPassword", password}});
}

cim::StoredInstance Clock(const char* time) {
  return Instance(
      "VELKSG_SP_ComputerSystem",
      {{"SourceNode", Node(1)}, {"Name", "SRV1:Node1"}, {"SPClock", cim::DateTime(time)}});
}

constexpr const char* kNothing = "; 0";

TEST(Changes, OfValuesAreMarked) {
  const report::Finding finding{report::Severity::Warning, report::FindingCode::Held, 1, "held"};
  const struct {
    const char* what;
    Input before;
    Input after;
    std::string marked;
  } cases[] = {
      {"nothing at all", {}, {}, kNothing},
      {"the same", {{Fan(40), DialOut("x")}}, {{DialOut("x"), Fan(40)}}, kNothing},
      {"a reading", {{Fan(40)}}, {{Fan(41)}}, "SP 1 fan Fan 1 > 41 %\n; ~Fan 1 on SP 1 0"},
      {"a text",
       {{Interface("a", "255.0.0.0")}},
       {{Interface("b", "255.0.0.0")}},
       "SP 1 network 1 Host name > b\n; ~Host name of Network interface 1 on SP 1 0"},
      {"what shares another's row",
       {{Interface("a", "255.0.0.0")}},
       {{Interface("a", "255.255.0.0")}},
       "SP 1 network 1 Address > 192.0.2.21/16 (255.255.0.0)\n; ~Subnet mask of Network interface "
       "1 on SP 1 0"},
      {"a secret, which stays masked",
       {{DialOut("one")}},
       {{DialOut("two")}},
       "SP 1 dial-out 2 Password > ********\n; ~Password of Dial-out entry 2 on SP 1 0"},
      {"a clock that went on",
       {{Clock("20240318094107.000000+000")}},
       {{Clock("20240318094117.000000+000")}, {}, {}, std::chrono::seconds(10)},
       kNothing},
      {"a clock that was set",
       {{Clock("20240318094107.000000+000")}},
       {{Clock("20250318094117.000000+000")}, {}, {}, std::chrono::seconds(10)},
       "SP 1 system Clock > 2025-03-18 09:41:17 UTC+00:00\n; ~Clock of Computer system on SP 1 0"},
      {"a finding that is new",
       {{}, {}, {finding}},
       {{}, {}, {finding, {report::Severity::Info, report::FindingCode::NoSp, {}, "no SP"}}},
       "- finding info > no SP\n; 1"},
      {"the same finding of another service processor",
       {{}, {}, {finding}},
       {{}, {}, {{finding.severity, finding.code, 2, finding.text}}},
       "SP 2 finding warning > held\n; 1"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(Marked(one.before, one.after), one.marked) << one.what;
  }
}

TEST(Changes, OfInstancesAreNamed) {
  EXPECT_EQ(Marked({{}}, {{DialOut("x")}}),
            "SP 1 > dial-out 2 Password ********\n"
            "; +Dial-out entry 2 on SP 1 0");
  EXPECT_EQ(Marked({{DialOut("x")}}, {{}}), "; -Dial-out entry 2 on SP 1 0");
  EXPECT_EQ(Marked({{}}, {{Fan(40)}}), "SP 1 fan Fan 1 > 40 %\n; +Fan 1 on SP 1 0");
  EXPECT_EQ(Marked({{Fan(40)}}, {{}}), "; -Fan 1 on SP 1 0");
}

TEST(Changes, OfASensorThatFallsSilentAreNoChangesOfInstances) {
  const report::SilentSensor silent{1, "Fan 1", SensorKind::Fan};
  const Input speaks{{Fan(40)}};
  const Input isSilent{{}, {silent}};
  EXPECT_EQ(Marked(speaks, isSilent), "SP 1 fan Fan 1 > no answer\n; ~Fan 1 on SP 1 0");
  EXPECT_EQ(Marked(isSilent, speaks), "SP 1 fan Fan 1 > 40 %\n; ~Fan 1 on SP 1 0");
  EXPECT_EQ(Marked(isSilent, isSilent), kNothing);
  // One that was not there at all is marked when it comes silent.
  EXPECT_EQ(Marked({{}}, isSilent), "SP 1 fan Fan 1 > no answer\n; ~Fan 1 on SP 1 0");
}

TEST(Changes, WithinTheToleranceAreMarkedOnlyWhenTheStateChanges) {
  EXPECT_EQ(Marked({{Fan(40)}}, {{Fan(42)}}, 5), kNothing);
  EXPECT_EQ(Marked({{Fan(40)}}, {{Fan(43)}}, 5), "SP 1 fan Fan 1 > 43 %\n; ~Fan 1 on SP 1 0");
  const report::Limits limits = UpperLimits(41, 50);
  EXPECT_EQ(Marked({{Fan(38)}}, {{Fan(39)}}, 5, limits), kNothing);
  const std::string marked = Marked({{Fan(40)}}, {{Fan(42)}}, 5, limits);
  EXPECT_EQ(marked.find("SP 1 fan Fan 1 > 42 % warning\n"), 0U) << marked;
}

// Sensors of one name are told apart by their order.
TEST(Changes, OfSensorsWithOneNameAreToldByTheirOrder) {
  const Input twins{{Fan(40), Fan(50)}};
  const report::Limits limits = UpperLimits(45, 60);
  EXPECT_EQ(Marked(twins, twins, 0, limits), kNothing);
  EXPECT_EQ(Marked(twins, {{Fan(40)}}), "; -Fan 1 on SP 1 0");
  const std::string another = Marked({{Fan(40)}}, twins);
  EXPECT_EQ(another.find("SP 1 fan Fan 1 > 50 %\n- finding warning > 2 instances of "), 0U);
  EXPECT_TRUE(another.ends_with("\n; +Fan 1 on SP 1 1")) << another;
  EXPECT_EQ(Marked(twins, {{Fan(40), Fan(51)}}), "SP 1 fan Fan 1 > 51 %\n; ~Fan 1 on SP 1 0");
}

}  // namespace
}  // namespace strake::tests
