// The sensors in the table: their kinds, columns and order.
#include "report/TableReport.h"
#include "tests/report/Instances.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace strake::tests {
namespace {

using report::SensorKind;
using report::SensorOrder;

// What stands between the heading of sensors and the summary.
std::string SensorsOf(const report::Report& report, const report::Layout& layout = {}) {
  const std::string table = Written(report::WriteTable, report, layout);
  const std::string heading = "\n  Sensors (VELKSG_SP_NumericSensor)\n";
  const std::size_t begin = table.find(heading);
  if (begin == std::string::npos) {
    return table;
  }
  const std::size_t rows = begin + heading.size();
  return table.substr(rows, table.find("\n\n", rows) + 1 - rows);
}

TEST(SensorTable, AlignsSensorsByCharactersAndScalesTheirReadings) {
  EXPECT_EQ(SensorsOf(ReportOf({Sensor(1, "Planar Voltage +5v", 500, 5, -2),
                                Sensor(1, "Wärme", 2700, 2, -2), Sensor(1, "Cold", -1250, 2, -2),
                                Sensor(1, "Fan 1", 73, 65, 0), Sensor(1, "Fan 2", 4000, 19, 0),
                                Sensor(1, "Odd", 7, 9, 0),
                                Instance("VELKSG_SP_NumericSensor",
                                         {{"SourceNode", Node(1)}, {"DeviceID", "Mute-Node1"}})})),
            R"(    Temperatures
      Wärme                    27.00 °C
      Cold                    -12.50 °C
    Fans
      Fan 1                       73 %
      Fan 2                     4000 RPM
    Voltages
      Planar Voltage +5v        5.00 V
    Others
      Odd                          7 unit 9
      Mute-Node1          no reading
)");
}

TEST(SensorTable, HasSensorsOfServiceProcessorsThatGaveNoReadingAtAll) {
  EXPECT_EQ(SensorsOf(report::Report({.facts = SomeFacts(),
                                      .silentSensors = {{1, "Fan 2", SensorKind::Fan},
                                                        {1, "Fan 1 ", SensorKind::Fan},
                                                        {1, "a\x1b", SensorKind::Power}}},
                                     report::Secrets::Masked)),
            "    Fans\n      Fan 2  no answer\n      Fan 1  no answer\n"
            "    Power\n      a\\x1B  no answer\n");
}

// Three fans, and six voltages of names with eight characters.
report::Report NineSensors(const std::string& last = "Core 6..") {
  return report::Report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "Fan 1", 73, 65, 0), Sensor(1, "Fan 2", 7, 65, 0),
                     Sensor(1, "Core 1..", 100, 5, -2), Sensor(1, "Core 2..", 200, 5, -2),
                     Sensor(1, "Core 3..", -3000, 5, -2), Sensor(1, "Core 4..", 400, 5, -2),
                     Sensor(1, "Core 5..", 500, 5, -2), Sensor(1, last, 600, 5, -2)},
       .silentSensors = {{1, "Fan 3", SensorKind::Fan}}},
      report::Secrets::Masked, report::Limits{});
}

constexpr const char* kTwoColumns = R"(    Fans
      Fan 1            73 %  ok    Fan 3     no answer
      Fan 2             7 %  ok
    Voltages
      Core 1..       1.00 V  ok    Core 4..       4.00 V  ok
      Core 2..       2.00 V  ok    Core 5..       5.00 V  ok
      Core 3..     -30.00 V  ok    Core 6..       6.00 V  ok
)";

TEST(SensorTable, HasTwoColumnsOnAWideTerminal) {
  EXPECT_EQ(SensorsOf(NineSensors(), {.columns = 110}), kTwoColumns);
  EXPECT_EQ(SensorsOf(NineSensors(), {.columns = 1000}), kTwoColumns);
  EXPECT_EQ(SensorsOf(NineSensors(), {.columns = 109}), R"(    Fans
      Fan 1            73 %  ok
      Fan 2             7 %  ok
      Fan 3     no answer
    Voltages
      Core 1..       1.00 V  ok
      Core 2..       2.00 V  ok
      Core 3..     -30.00 V  ok
      Core 4..       4.00 V  ok
      Core 5..       5.00 V  ok
      Core 6..       6.00 V  ok
)");
}

// The lines that begin so, without the beginning, of several blanks one.
std::vector<std::string> LinesThatBeginWith(const std::string& beginning, const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with(beginning)) {
      std::string& kept = lines.emplace_back(line.substr(beginning.size()));
      const auto areBlanks = [](char one, char other) { return one == ' ' && other == ' '; };
      kept.erase(std::unique(kept.begin(), kept.end(), areBlanks), kept.end());
    }
  }
  return lines;
}

// Beside the name a sensor takes 17 characters: two of them, what stands in
// front and what stands between make 2 * (name + 17) + 10.
TEST(SensorTable, HasTwoColumnsWhereTheyFit) {
  const struct {
    std::size_t nameLength;
    std::size_t columns;
    bool areTwo;
  } cases[] = {{32, 109, false}, {33, 110, true},  {34, 111, false},   {34, 112, true},
               {83, 210, true},  {84, 211, false}, {5000, 1000, false}};
  for (const auto& one : cases) {
    const std::string last(one.nameLength, 'n');
    const std::string table = SensorsOf(NineSensors(last), {.columns = one.columns});
    const std::vector<std::string> first = LinesThatBeginWith("      Core 1..", table);
    EXPECT_EQ(first,
              std::vector<std::string>{one.areTwo ? " 1.00 V ok Core 4.. 4.00 V ok" : " 1.00 V ok"})
        << one.nameLength << ' ' << one.columns;
    for (const std::string& line : LinesThatBeginWith("", table)) {
      EXPECT_TRUE(!one.areTwo || line.size() <= one.columns) << line;
    }
  }
}

TEST(SensorTable, OrdersSensorsWithinTheirKind) {
  const report::Limits limits = {{.kind = SensorKind::Fan,
                                  .lowerCritical = report::Bound{5, "5"},
                                  .lowerWarning = report::Bound{10, "10"}}};
  const report::Report report(
      {.facts = SomeFacts(),
       .instances = {Sensor(1, "Core", 1, 5, 0), Sensor(1, "c", 80, 65, 0),
                     Sensor(1, "a", 80, 65, 0), Sensor(1, "e", 40, 19, 0), Sensor(1, "b", 9, 65, 0),
                     Sensor(1, "d", 400, 65, -2), Sensor(1, "f", 10, 65, 0),
                     Sensor(1, "b", 8, 65, 0)},
       .silentSensors = {{1, "aa", SensorKind::Fan}, {1, "Z", SensorKind::Fan}}},
      report::Secrets::Masked, limits);
  const std::string a = "a 80 % ok";
  const std::string b = "b 9 % warning";
  const std::string b2 = "b 8 % warning";
  const std::string c = "c 80 % ok";
  const std::string d = "d 4.00 % critical";
  const std::string e = "e 40 RPM ok";
  const std::string f = "f 10 % ok";
  const std::string aa = "aa no answer";
  const std::string z = "Z no answer";
  const struct {
    SensorOrder order;
    std::vector<std::string> fans;
  } cases[] = {
      {SensorOrder::AsCollected, {c, a, e, b, d, f, b2, aa, z}},
      {SensorOrder::ByName, {a, b, b2, c, d, e, f, z, aa}},
      {SensorOrder::ByReading, {d, b2, b, f, c, a, e, aa, z}},
      {SensorOrder::ByState, {d, b, b2, c, a, e, f, aa, z}},
  };
  for (const auto& one : cases) {
    std::vector<std::string> withCore = one.fans;
    withCore.emplace_back("Core 1 V ok");
    EXPECT_EQ(LinesThatBeginWith("      ", SensorsOf(report, {.order = one.order})), withCore);
    EXPECT_EQ(LinesThatBeginWith("SP 1  fan      ", Written(report::WriteTable, report,
                                                            {.order = one.order, .header = false})),
              one.fans);
  }
}

}  // namespace
}  // namespace strake::tests
