#include "report/JsonReport.h"

#include "report/JsonValue.h"
#include "report/Timestamp.h"
#include "text/TextEscape.h"

#include <nlohmann/json.hpp>
#include <string>

namespace strake::report {
namespace {

using Json = nlohmann::ordered_json;

Json HeadOf(const CollectionFacts& facts) {
  return {{"format", "strake-report/1"},
          {"strake", facts.version},
          {"collected_at", Timestamp(facts.collectedAt)},
          {"server",
           {{"name", text::ToValidUtf8(facts.server.name)},
            {"description", text::ToValidUtf8(facts.server.description)},
            {"kind", text::ToValidUtf8(facts.server.kind)}}}};
}

Json InstanceOf(const cim::StoredInstance& instance) {
  Json properties = Json::object();
  for (const cim::StoredProperty& property : instance.properties) {
    properties.emplace(property.schema->name, JsonValue(property.value));
  }
  Json object;
  object["class"] = instance.schema->name;
  object["properties"] = std::move(properties);
  return object;
}

Json FindingOf(const Finding& finding) {
  Json object{{"severity", SeverityName(finding.severity)}, {"code", CodeName(finding.code)}};
  if (finding.sp) {
    object["sp"] = *finding.sp;
  }
  object["text"] = text::ToValidUtf8(finding.text);
  return object;
}

std::string Line(const Json& json) { return text::EscapeJson(json.dump()); }

// An instance's object. The reading is put in as it is written: a number in
// JSON has no last place that could get lost. JSON bounds no number either, but a
// reader that keeps it as a double can refuse the whole report for one beyond all
// of them.
std::string InstanceLine(const cim::StoredInstance& instance, const Report& report) {
  std::string line = Line(InstanceOf(instance));
  const Sensor* const sensor = report.FindSensor(instance);
  if (sensor == nullptr) {
    return line;
  }
  line.back() = ',';
  if (ReadingFitsDouble(*sensor)) {
    line += "\"reading\":" + sensor->reading + ",";
  }
  line += "\"unit\":" + Line(sensor->unit);
  if (sensor->state) {
    line += ",\"state\":" + Line(StateName(*sensor->state));
  }
  return line + '}';
}

// An array, an element a line.
template <typename Elements, typename LineOf>
void WriteArray(std::string_view key, const Elements& elements, const LineOf& lineOf,
                const Sink& sink) {
  sink("  \"" + std::string(key) + "\": [");
  const char* separator = "\n    ";
  for (const auto& element : elements) {
    sink(separator + lineOf(element));
    separator = ",\n    ";
  }
  sink(elements.empty() ? "]" : "\n  ]");
}

}  // namespace

// One value a line, and no more than one of the instances as JSON at a time:
// there can be 140,000.
void WriteJson(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  const Json head = HeadOf(report.Facts());
  sink("{\n");
  for (const auto& [key, value] : head.items()) {
    sink("  " + Line(key) + ": " + Line(value) + ",\n");
  }
  WriteArray(
      "findings", report.Findings(), [](const Finding& one) { return Line(FindingOf(one)); }, sink);
  sink(",\n");
  WriteArray(
      "instances", report.Instances(),
      [&report](const cim::StoredInstance& one) { return InstanceLine(one, report); }, sink);
  sink("\n}\n");
}

}  // namespace strake::report
