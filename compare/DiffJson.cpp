#include "compare/DiffReport.h"
#include "report/JsonValue.h"
#include "report/Timestamp.h"
#include "text/TextEscape.h"

#include <nlohmann/json.hpp>

namespace strake::compare {
namespace {

using Json = nlohmann::ordered_json;

Json Describe(const Compared& one) {
  return {{"file", text::ToValidUtf8(one.name)},
          {"server", one.report->server},
          {"collected_at", report::Timestamp(one.report->collectedAt)}};
}

Json ChangeOf(const Change& change) {
  if (change.property->role == cim::Role::Secret) {
    return {{"masked", true}};
  }
  Json object = Json::object();
  if (change.before != nullptr) {
    object["before"] = report::JsonValue(*change.before);
  }
  if (change.after != nullptr) {
    object["after"] = report::JsonValue(*change.after);
  }
  return object;
}

std::string_view NameOf(const Difference& one) {
  if (one.before == nullptr) {
    return "added";
  }
  return one.after == nullptr ? "removed" : "changed";
}

Json DifferenceOf(const Difference& one) {
  const cim::StoredInstance& instance = one.before == nullptr ? *one.after : *one.before;
  Json keys = Json::object();
  for (const cim::StoredProperty& property : instance.properties) {
    if (property.schema->role == cim::Role::Key) {
      keys.emplace(property.schema->name, report::JsonValue(property.value));
    }
  }
  Json object{{"change", NameOf(one)}, {"class", instance.schema->name}};
  object["keys"] = std::move(keys);
  if (!one.changes.empty()) {
    Json& properties = object["properties"] = Json::object();
    for (const Change& change : one.changes) {
      properties.emplace(change.property->name, ChangeOf(change));
    }
  }
  return object;
}

std::string Line(const Json& json) { return text::EscapeJson(json.dump()); }

}  // namespace

void WriteDiffJson(const DiffReport& diff, const report::Sink& sink) {
  sink("{\n  \"format\": \"strake-diff/1\",\n  \"strake\": " + Line(diff.version) +
       ",\n  \"before\": " + Line(Describe(diff.before)) +
       ",\n  \"after\": " + Line(Describe(diff.after)) + ",\n  \"differences\": [");
  const char* separator = "\n    ";
  for (const Difference& one : diff.differences) {
    sink(separator + Line(DifferenceOf(one)));
    separator = ",\n    ";
  }
  sink(diff.differences.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

}  // namespace strake::compare
