// What the table shows first.
#include "report/FirstScreen.h"
#include "tests/report/Instances.h"

#include <gtest/gtest.h>
#include <optional>

namespace strake::tests {
namespace {

using report::Finding;
using report::FindingCode;
using report::SensorKind;
using report::Severity;

// Without the blank line in front of it.
std::string FirstScreenOf(report::Collected collected,
                          const std::optional<report::Limits>& limits = {}) {
  collected.facts = SomeFacts();
  const report::Report report(std::move(collected), report::Secrets::Masked, limits);
  std::string text;
  const report::Sink sink = [&text](std::string_view piece) { text += piece; };
  const report::Layout layout;
  report::TableText out(layout, sink);
  report::WriteFirstScreen(report, report::PartsOf(report, report::SensorOrder::AsCollected), out);
  out.Flush();
  return text.starts_with('\n') ? text.substr(1) : text;
}

TEST(FirstScreen, CountsSensorsByKindWithTheirLowestAndHighestReadings) {
  const struct {
    std::vector<cim::StoredInstance> sensors;
    std::string lines;
  } cases[] = {
      {{}, ""},
      {{Sensor(1, "A", 500, 5, -2)}, "  Voltages  1  5.00 V\n"},
      {{Sensor(1, "A", 500, 5, -2), Sensor(1, "B", 500, 5, -2)}, "  Voltages  2  5.00 V\n"},
      {{Sensor(1, "A", 500, 5, -2), Sensor(1, "B", -1200, 5, -2), Sensor(1, "C", 10, 5, -1)},
       "  Voltages  3  -12.00 to 5.00 V\n"},
      {{Sensor(1, "A", 9, 65, 0), Sensor(1, "B", 80, 65, 0), Sensor(1, "C", 10, 65, 0)},
       "  Fans  3  9 to 80 %\n"},
      {{Sensor(1, "A", 9, 65, 0), Sensor(1, "B", 4000, 19, 0)}, "  Fans  2  several units\n"},
      {{Sensor(1, "A", 1, 9, 0), Sensor(1, "B", 2, 9, 0)}, "  Others  2  1 to 2 unit 9\n"},
      {{Sensor(1, "A", 7, 6, 0), Sensor(1, "B", 7, 6, 400), Sensor(1, "C", -7, 6, 400)},
       "  Currents  3  -7e400 to 7e400 A\n"},
      {{Instance("VELKSG_SP_NumericSensor", {{"SourceNode", Node(1)}, {"DeviceID", "A"}})},
       "  Others  1\n"},
      {{Instance("VELKSG_SP_NumericSensor",
                 {{"SourceNode", Node(1)}, {"DeviceID", "A"}, {"CurrentReading", 7}})},
       "  Others  1  7\n"},
      {{Sensor(1, "A", 12, 7, 0), Sensor(1, "B", 30, 2, 0), Sensor(1, "C", 9, 65, 0)},
       "  Temperatures  1  30 °C\n  Fans          1  9 %\n  Power         1  12 W\n"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(FirstScreenOf({.instances = one.sensors, .processors = {{1, report::Answer::Yes}}}),
              "SP 1  answered\n" + one.lines + "\nFindings: none\n");
  }
}

TEST(FirstScreen, CountsSensorsThatDidNotAnswerAndThoseOutOfTheirLimits) {
  const report::Limits limits = {
      {.lowerCritical = report::Bound{5, "5"}, .lowerWarning = report::Bound{10, "10"}}};
  const std::string table = FirstScreenOf(
      {.instances = {Sensor(1, "A", 1, 65, 0), Sensor(1, "B", 6, 65, 0), Sensor(1, "C", 7, 65, 0),
                     Sensor(1, "D", 70, 65, 0), Sensor(2, "E", 6, 65, 0)},
       .silentSensors = {{1, "F", SensorKind::Fan},
                         {1, "G", SensorKind::Fan},
                         {2, "H", SensorKind::Temperature}}},
      limits);
  EXPECT_EQ(table, R"(SP 1  answered
  Fans          6  1 to 70 %  1 critical, 2 warnings, 2 did not answer
SP 2  answered
  Temperatures  1             1 did not answer
  Fans          1  6 %        1 warning

Findings: 1 critical, 3 warnings
  critical  SP 1  A is 1 %, below 5 %
  warning   SP 1  B is 6 %, below 10 %
  warning   SP 1  C is 7 %, below 10 %
  warning   SP 2  E is 6 %, below 10 %
)");
}

TEST(FirstScreen, ShowsTheFirstAddressThatIsOneAndTheClock) {
  const auto interface = [](std::uint8_t node, const std::string& name,
                            const std::string& address) {
    return Instance("VELKSG_ServProc_IPProtocolEndpoint",
                    {{"SourceNode", Node(node)}, {"Name", name}, {"HostIPAddress", address}});
  };
  const auto clock = [](std::uint8_t node, const cim::Value& time) {
    return Instance("VELKSG_SP_ComputerSystem", {{"SourceNode", Node(node)}, {"SPClock", time}});
  };
  EXPECT_EQ(FirstScreenOf({.instances = {interface(1, "a", "0.0.0.0"), interface(1, "b", ""),
                                         interface(1, "c", "192.0.2.9"),
                                         interface(1, "d", "192.0.2.8"), clock(2, SomeTime()),
                                         interface(10, "e", "a\x1b\xFF"), clock(10, "late\n")}}),
            R"(SP 1   answered  192.0.2.9
SP 2   answered             2010-06-15 13:45:30 UTC-02:00
SP 10  answered  a\x1B\xFF  late\n

Findings: none
)");
}

TEST(FirstScreen, ShowsSensorsOfNoServiceProcessorAndNoOtherInstanceOfNone) {
  const auto system = Instance("VELKSG_SP_ComputerSystem", {{"Name", "x"}});
  const auto sensor = Instance("VELKSG_SP_NumericSensor",
                               {{"DeviceID", "A"}, {"CurrentReading", 7}, {"BaseUnits", Units(5)}});
  EXPECT_EQ(FirstScreenOf({.instances = {sensor}}),
            "no SP\n  Voltages  1  7 V\n\nFindings: none\n");
  EXPECT_EQ(FirstScreenOf({.instances = {system, Sensor(1, "A", 7, 5, 0)}}),
            "SP 1  answered\n  Voltages  1  7 V\n\nFindings: none\n");
  EXPECT_EQ(FirstScreenOf({.instances = {system}}), "");
}

TEST(FirstScreen, HasTheFiveGravestFindingsAndCountsTheOthers) {
  report::Collected collected{.processors = {{1, report::Answer::Yes}}};
  const auto add = [&collected](Severity severity, int count) {
    for (int i = 1; i <= count; ++i) {
      collected.findings.push_back(
          {severity, FindingCode::Partial, 1,
           std::string(report::SeverityName(severity)) + " " + std::to_string(i)});
    }
  };
  add(Severity::Info, 7);
  EXPECT_EQ(FirstScreenOf(collected), "SP 1  answered\n\nFindings: 7 info\n");
  add(Severity::Warning, 5);
  EXPECT_EQ(FirstScreenOf(collected), R"(SP 1  answered

Findings: 5 warnings, 7 info
  warning  SP 1  warning 1
  warning  SP 1  warning 2
  warning  SP 1  warning 3
  warning  SP 1  warning 4
  warning  SP 1  warning 5
)");
  add(Severity::Critical, 3);
  EXPECT_EQ(FirstScreenOf(collected), R"(SP 1  answered

Findings: 3 critical, 5 warnings, 7 info
  critical  SP 1  critical 1
  critical  SP 1  critical 2
  critical  SP 1  critical 3
  warning   SP 1  warning 1
  warning   SP 1  warning 2
  and 3 more at the end
)");
}

// With a voltage each.
report::Collected ManyProcessors(int count) {
  report::Collected collected;
  for (int sp = 1; sp <= count; ++sp) {
    collected.processors.push_back({sp, report::Answer::Yes});
    collected.instances.push_back(Sensor(static_cast<std::uint8_t>(sp), "A", sp, 5, 0));
  }
  return collected;
}

TEST(FirstScreen, HasALineOfEachWhenThereAreMoreThanFourServiceProcessors) {
  EXPECT_EQ(FirstScreenOf(ManyProcessors(4)), R"(SP 1  answered
  Voltages  1  1 V
SP 2  answered
  Voltages  1  2 V
SP 3  answered
  Voltages  1  3 V
SP 4  answered
  Voltages  1  4 V

Findings: none
)");
  report::Collected five = ManyProcessors(5);
  five.processors[1].answer = report::Answer::No;
  five.instances.erase(five.instances.begin() + 1);
  five.silentSensors = {{4, "B", SensorKind::Fan}};
  EXPECT_EQ(FirstScreenOf(five), R"(SP 1  answered        1 sensor
SP 2  did not answer
SP 3  answered        1 sensor
SP 4  answered        2 sensors  1 did not answer
SP 5  answered        1 sensor

Findings: none
)");
}

TEST(FirstScreen, StaysOneOfManyServiceProcessorsAndShowsThoseInTrouble) {
  report::Collected collected = ManyProcessors(254);
  std::string expected;
  for (int sp = 1; sp <= 16; ++sp) {
    expected += (sp < 10 ? "SP " + std::to_string(sp) + " " : "SP " + std::to_string(sp)) +
                "  answered  1 sensor\n";
  }
  EXPECT_EQ(FirstScreenOf(collected), expected + "and 238 more, all answered\n\nFindings: none\n");

  collected.processors[199].answer = report::Answer::No;
  collected.findings = {{Severity::Info, FindingCode::Partial, 210, "info"},
                        {Severity::Warning, FindingCode::Partial, 220, "warning"},
                        {Severity::Critical, FindingCode::Partial, 230, "critical"},
                        {Severity::Critical, FindingCode::Partial, {}, "of none"}};
  const std::string screen = FirstScreenOf(collected);
  for (const std::string line :
       {"SP 1    answered        1 sensor\n", "SP 12   answered        1 sensor\n",
        "SP 200  did not answer  1 sensor\n", "SP 210  answered        1 sensor\n",
        "SP 220  answered        1 sensor\n", "SP 230  answered        1 sensor\n",
        "and 238 more, all answered\n"}) {
    EXPECT_NE(screen.find(line), std::string::npos) << line;
  }
  EXPECT_EQ(screen.find("SP 13 "), std::string::npos);

  for (report::Processor& processor : collected.processors) {
    processor.answer = processor.number > 20 ? report::Answer::Yes : report::Answer::No;
  }
  EXPECT_NE(FirstScreenOf(collected).find("\nand 238 more, 4 of which did not answer\n"),
            std::string::npos);
}

TEST(FirstScreen, SaysOfTheRestHowManyDidNotAnswerOrWereNotAsked) {
  using report::Answer;
  const struct {
    int silent;
    int notAsked;
    std::string rest;
  } cases[] = {
      {0, 0, "and 4 more, all answered\n"},
      {17, 0, "and 4 more, 1 of which did not answer\n"},
      {20, 0, "and 4 more, none of which answered\n"},
      {0, 20, "and 4 more, 4 of which were not asked\n"},
      {0, 1, "and 4 more, 1 of which was not asked\n"},
      {17, 3, "and 4 more, 1 of which did not answer, 3 of which were not asked\n"},
  };
  for (const auto& one : cases) {
    report::Collected collected;
    for (int sp = 1; sp <= 20; ++sp) {
      const Answer others = sp > 20 - one.notAsked ? Answer::NotAsked : Answer::Yes;
      collected.processors.push_back({sp, sp <= one.silent ? Answer::No : others});
    }
    EXPECT_NE(FirstScreenOf(collected).find("\n" + one.rest), std::string::npos) << one.rest;
  }
}

}  // namespace
}  // namespace strake::tests
