#include "report/HtmlSensors.h"

#include "report/HtmlParts.h"
#include "report/NominalVoltage.h"
#include "report/SensorTally.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>
#include <vector>

namespace strake::report {
namespace {

using Sensors = std::span<const Sensor* const>;

// In decimal, with so many digits behind the point or as few as there are.
std::string Decimal(double number, int digits, bool hasSign = false) {
  constexpr double kLargest = 1e15;
  std::array<char, 64> buffer{};
  const auto [end, error] =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                    std::clamp(number, -kLargest, kLargest), std::chars_format::fixed, digits);
  std::string text(buffer.data(), end);
  const bool isZero = text.find_first_not_of("-0.") == std::string::npos;
  if (isZero && text.front() == '-') {
    text.erase(0, 1);
  }
  if (hasSign && !isZero && text.front() != '-') {
    text.insert(text.begin(), '+');
  }
  return text;
}

// The shortest text that means this number.
std::string Shortest(double number) {
  std::array<char, 32> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
  return {buffer.data(), end};
}

// What all sensors of a table have in common.
struct Table {
  SensorKind kind = SensorKind::Other;
  bool hasBars = false;
  bool hasDeviations = false;
  bool hasStates = false;
  const Scale* scale = nullptr;  // null: there are several
  std::string_view unit = {};
};

Table Describe(Sensors sensors, const ChartScales& scales, bool hasStates) {
  Table table{.kind = sensors.front()->kind, .hasStates = hasStates};
  bool isFirst = true;
  for (const Sensor* const sensor : sensors) {
    table.hasDeviations = table.hasDeviations || Deviation(*sensor).has_value();
    const Scale* const scale = scales.Of(*sensor);
    if (scale != nullptr) {
      table.scale = isFirst || table.scale == scale ? scale : nullptr;
      table.unit = sensor->unit;
      table.hasBars = true;
      isFirst = false;
    }
  }
  if (table.hasDeviations) {
    table.scale = &scales.Deviations();
    table.unit = "%";
  }
  return table;
}

// Which readings the pictures' ends and middle stand for.
void AddAxis(HtmlOut& out, const Table& table) {
  if (table.scale == nullptr) {
    AddUnseen(out, "Picture");
    return;
  }
  const double middle = (table.scale->low + table.scale->high) / 2;
  out.Add("<span class=\"unseen\">Picture, on a scale of </span><span class=\"axis\"><span>"_html,
          Shortest(table.scale->low), "</span> <span>"_html, Shortest(middle),
          "</span> <span>"_html, Shortest(table.scale->high), " "_html, table.unit,
          "</span></span>"_html);
}

void AddHead(HtmlOut& out, const Table& table) {
  out.Add(
      "<thead><tr><th scope=\"col\" data-sort=\"name\">Sensor</th>"
      "<th scope=\"col\" class=\"number\" data-sort=\"reading\">Reading</th>"_html);
  if (table.hasDeviations) {
    out.Add("<th scope=\"col\" class=\"chart\" data-sort=\"off\">Off nominal "_html);
    AddAxis(out, table);
    out.Add("</th>"_html);
  } else if (table.hasBars) {
    out.Add("<th scope=\"col\" class=\"chart\">"_html);
    AddAxis(out, table);
    out.Add("</th>"_html);
  }
  if (table.hasStates) {
    out.Add("<th scope=\"col\" data-sort=\"state\">State</th>"_html);
  }
  out.Add("</tr></thead>"_html);
}

// A bar from zero to the value.
void AddBar(HtmlOut& out, const Scale& scale, double value) {
  const double zero = PlaceOn(scale, 0);
  const double place = PlaceOn(scale, value);
  out.Add("<svg class=\"bar\" aria-hidden=\"true\"><rect x=\""_html,
          Decimal(std::min(zero, place), 1), "%\" width=\""_html,
          Decimal(std::max(zero, place) - std::min(zero, place), 1), "%\" height=\"100%\"/>"_html);
  if (scale.low < 0) {
    out.Add("<line x1=\""_html, Decimal(zero, 1), "%\" x2=\""_html, Decimal(zero, 1),
            "%\" y2=\"100%\"/>"_html);
  }
  out.Add("</svg>"_html);
}

void AddDeviation(HtmlOut& out, const Sensor& sensor, const Scale& scale) {
  const std::optional<double> deviation = Deviation(sensor);
  if (!deviation) {
    out.Add("<td class=\"chart none\">"_html, NominalVoltage(sensor.name) ? "" : "none stated",
            "</td>"_html);
    return;
  }
  out.Add("<td class=\"chart\" data-value=\""_html, Decimal(*deviation, 4),
          "\"><div class=\"off\"><span>"_html, Decimal(*deviation, 1, true), " %</span> "_html);
  AddBar(out, scale, *deviation);
  out.Add("</div></td>"_html);
}

void AddReading(HtmlOut& out, const Sensor& sensor) {
  if (sensor.reading.empty()) {
    out.Add("<td class=\"number none\">"_html, ReadingForPeople(sensor), "</td>"_html);
    return;
  }
  out.Add("<td class=\"number\" data-value=\""_html, sensor.reading, "\">"_html, sensor.reading,
          " <span class=\"unit\">"_html, UnitForPeople(sensor), "</span></td>"_html);
}

void AddRow(HtmlOut& out, const Sensor& sensor, const Table& table, const ChartScales& scales) {
  out.Add(sensor.instance == nullptr ? "<tr class=\"silent\""_html : "<tr class=\"sensor\""_html);
  if (sensor.state) {
    out.Add(" data-state=\""_html, StateName(*sensor.state), "\""_html);
  }
  out.Add("><th scope=\"row\">"_html, sensor.name, "</th>"_html);
  AddReading(out, sensor);
  if (table.hasDeviations) {
    AddDeviation(out, sensor, scales.Deviations());
  } else if (table.hasBars) {
    out.Add("<td class=\"chart\">"_html);
    if (const Scale* const scale = scales.Of(sensor)) {
      AddBar(out, *scale, ReadingValue(sensor).value_or(0));
    }
    out.Add("</td>"_html);
  }
  if (table.hasStates) {
    out.Add("<td class=\"state\""_html);
    if (sensor.state) {
      out.Add(" data-value=\""_html, static_cast<int>(*sensor.state), "\">"_html);
      AddState(out, *sensor.state);
    } else {
      out.Add(">"_html);
    }
    out.Add("</td>"_html);
  }
  out.Add("</tr>\n"_html);
}

void AddTable(HtmlOut& out, Sensors sensors, const ChartScales& scales, bool hasStates) {
  const Table table = Describe(sensors, scales, hasStates);
  out.Add("<div class=\"kind\" data-group><h4>"_html, KindHeading(table.kind), " <small>"_html,
          sensors.size());
  const std::string range = RangeText(TallyOf(sensors));
  // Voltages differ by what they are for.
  if (!range.empty() && table.kind != SensorKind::Voltage) {
    out.Add(", "_html, range);
  }
  out.Add("</small></h4><table class=\"sensors "_html, KindName(table.kind), "\">"_html);
  AddHead(out, table);
  out.Add("<tbody>\n"_html);
  for (const Sensor* const sensor : sensors) {
    AddRow(out, *sensor, table, scales);
  }
  out.Add("</tbody></table></div>\n"_html);
}

}  // namespace

void AddSensors(HtmlOut& out, const ProcessorPart& processor, const ChartScales& scales,
                bool hasStates) {
  if (processor.sensors.empty()) {
    return;
  }
  out.Add("<section data-group><h3>Sensors</h3><div class=\"kinds\">\n"_html);
  for (int kind = 0; kind < kSensorKinds; ++kind) {
    const Sensors sensors = processor.SensorsOf(static_cast<SensorKind>(kind));
    if (!sensors.empty()) {
      AddTable(out, sensors, scales, hasStates);
    }
  }
  out.Add("</div>"_html);
  std::vector<const cim::StoredInstance*> instances;
  for (const Sensor* const sensor : processor.sensors) {
    if (sensor->instance != nullptr) {
      instances.push_back(sensor->instance);
    }
  }
  if (!instances.empty()) {
    AddCimProperties(out, instances);
  }
  out.Add("</section>\n"_html);
}

}  // namespace strake::report
