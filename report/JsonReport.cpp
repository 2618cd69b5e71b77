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

// What stands between the parts of the object.
struct Spacing {
  std::string_view member;   // before each of the report's
  std::string_view value;    // before its value
  std::string_view element;  // before each of an array's
  std::string_view end;      // before the last bracket
};

constexpr Spacing kOneValueALine{"\n  ", " ", "\n    ", "\n"};
constexpr Spacing kOneLine{};

// Writes the report's object, member by member.
class ObjectWriter {
 public:
  ObjectWriter(const Spacing& spacing, const Sink& sink) : fSpacing(spacing), fSink(sink) {}

  void Key(std::string_view key) {
    std::string text(fSeparator);
    text.append(fSpacing.member).append("\"").append(key).append("\":").append(fSpacing.value);
    fSink(text);
    fSeparator = ",";
  }

  void Member(std::string_view key, const Json& value) {
    Key(key);
    fSink(Line(value));
  }

  template <typename Elements, typename LineOf>
  void Array(std::string_view key, const Elements& elements, const LineOf& lineOf) {
    Key(key);
    char separator = '[';
    for (const auto& element : elements) {
      fSink(std::string(1, separator).append(fSpacing.element).append(lineOf(element)));
      separator = ',';
    }
    fSink(elements.empty() ? "[]" : std::string(fSpacing.member).append("]"));
  }

  void End() { fSink(std::string(fSpacing.end).append("}\n")); }

 private:
  const Spacing& fSpacing;
  const Sink& fSink;
  std::string_view fSeparator = "{";
};

// No more than one of the instances is JSON at a time: there can be 140,000.
void Write(const Report& report, const Spacing& spacing, const Sink& sink) {
  ObjectWriter object(spacing, sink);
  const Json head = HeadOf(report.Facts());
  for (const auto& [key, value] : head.items()) {
    object.Member(key, value);
  }
  object.Array("findings", report.Findings(),
               [](const Finding& one) { return Line(FindingOf(one)); });
  object.Array("instances", report.Instances(),
               [&report](const cim::StoredInstance& one) { return InstanceLine(one, report); });
  object.End();
}

}  // namespace

void WriteJson(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  Write(report, kOneValueALine, sink);
}

void WriteJsonLine(const Report& report, const Layout& /*layout*/, const Sink& sink) {
  Write(report, kOneLine, sink);
}

std::string JsonFailureLine(const Failure& failure) {
  return Line({{"format", "strake-error/1"},
               {"strake", failure.version},
               {"server", {{"name", text::ToValidUtf8(failure.server)}}},
               {"error", text::ToValidUtf8(failure.text)}}) +
         '\n';
}

bool IsJsonReportLine(std::string_view text) {
  return text.starts_with(R"({"format":"strake-report/1",)") &&
         text.find('\n') == text.size() - 1 && Json::accept(text);
}

}  // namespace strake::report
