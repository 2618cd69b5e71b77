#include "report/JsonReport.h"

#include "report/Timestamp.h"
#include "text/TextEscape.h"

#include <nlohmann/json.hpp>
#include <string>

namespace strake::report {
namespace {

using Json = nlohmann::ordered_json;

Json ValueOf(const cim::Value& value) {
  struct Values {
    Json operator()(const std::string& text) const { return text::ToValidUtf8(text); }
    Json operator()(const cim::DateTime& dateTime) const {
      return text::ToValidUtf8(dateTime.Text());
    }
    Json operator()(int number) const { return number; }
  };
  return std::visit(Values{}, value);
}

Json HeadOf(const CollectionFacts& facts) {
  return {{"format", "strake-report/1"},
          {"strake", facts.version},
          {"collected_at", Timestamp(facts.collectedAt)},
          {"server",
           {{"name", text::ToValidUtf8(facts.server.name)},
            {"description", text::ToValidUtf8(facts.server.description)},
            {"kind", facts.server.kind}}}};
}

Json InstanceOf(const cim::StoredInstance& instance) {
  Json properties = Json::object();
  for (const cim::StoredProperty& property : instance.properties) {
    properties.emplace(property.schema->name, ValueOf(property.value));
  }
  Json object;
  object["class"] = instance.schema->name;
  object["properties"] = std::move(properties);
  return object;
}

std::string Line(const Json& json) { return text::EscapeJson(json.dump()); }

}  // namespace

// One value a line, and no more than one of the instances as JSON at a time:
// there can be 140,000.
void WriteJson(const Report& report, Colour /*colour*/, const Sink& sink) {
  const Json head = HeadOf(report.Facts());
  sink("{\n");
  for (const auto& [key, value] : head.items()) {
    sink("  " + Line(key) + ": " + Line(value) + ",\n");
  }
  sink("  \"instances\": [");
  const char* separator = "\n    ";
  for (const cim::StoredInstance& instance : report.Instances()) {
    sink(separator + Line(InstanceOf(instance)));
    separator = ",\n    ";
  }
  sink(report.Instances().empty() ? "]\n}\n" : "\n  ]\n}\n");
}

}  // namespace strake::report
