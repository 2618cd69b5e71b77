#include "schema/JsonSchema.h"

#include "cim/Catalogue.h"
#include "report/Finding.h"
#include "report/Report.h"

#include <limits>
#include <nlohmann/json.hpp>

namespace strake::schema {
namespace {

using Json = nlohmann::ordered_json;

// The names of what an enumeration counts from 0.
template <typename Enumeration>
Json NamesOf(std::string_view (*nameOf)(Enumeration), int count) {
  Json names = Json::array();
  for (int i = 0; i < count; ++i) {
    names.push_back(nameOf(static_cast<Enumeration>(i)));
  }
  return names;
}

constexpr int kSeverities = static_cast<int>(report::Severity::Critical) + 1;
constexpr int kStates = static_cast<int>(report::SensorState::Critical) + 1;

Json Object(const Json& properties, const Json& required) {
  return {{"type", "object"}, {"required", required}, {"properties", properties}};
}

Json Described(Json schema, std::string_view description) {
  schema["description"] = description;
  return schema;
}

Json Text(std::string_view description) { return Described({{"type", "string"}}, description); }

template <typename Integer>
Json IntegerSchema() {
  return {{"type", "integer"},
          {"minimum", std::numeric_limits<Integer>::min()},
          {"maximum", std::numeric_limits<Integer>::max()}};
}

Json TypeSchema(cim::CimType type) {
  switch (type) {
    case cim::CimType::Sint32:
      return IntegerSchema<std::int32_t>();
    case cim::CimType::Uint16:
      return IntegerSchema<std::uint16_t>();
    case cim::CimType::Uint8:
      return IntegerSchema<std::uint8_t>();
    case cim::CimType::DateTime:
      return {{"type", "string"}, {"pattern", "^[0-9]{14}\\.[0-9]{6}[+-][0-9]{3}$"}};
    case cim::CimType::String:
      break;
  }
  return {{"type", "string"}};
}

Json PropertySchema(const cim::SchemaProperty& property) {
  std::string description(property.description);
  if (property.role == cim::Role::Secret) {
    description += " Written as " + std::string(report::kSecretMask) + " unless it is asked for.";
  }
  Json schema = Described(TypeSchema(property.type), description);
  schema["title"] = property.label;
  return schema;
}

// What an instance's object of the class has.
Json ClassSchema(const cim::SchemaClass& schema) {
  Json properties = Json::object();
  for (const cim::SchemaProperty& property : schema.properties) {
    properties[std::string(property.name)] = PropertySchema(property);
  }
  Json members{{"properties", {{"type", "object"}, {"properties", properties}}}};
  if (schema.group == cim::QueryGroup::Sensors) {
    members["reading"] = Described({{"type", "number"}}, "The reading in its unit, exact.");
    members["unit"] = Text("A unit's sign, or its code where it has none.");
    members["state"] = Described({{"enum", NamesOf(report::StateName, kStates)}},
                                 "How the reading stands to the limits that were given.");
  }
  Json object{
      {"title", schema.title}, {"description", schema.description}, {"properties", members}};
  if (schema.group == cim::QueryGroup::Sensors) {
    object["required"] = {"unit"};
  }
  return object;
}

Json FindingSchema() {
  return Object({{"severity", {{"enum", NamesOf(report::SeverityName, kSeverities)}}},
                 {"code", {{"enum", NamesOf(report::CodeName, report::kFindingCodes)}}},
                 {"sp", Described({{"type", "integer"}, {"minimum", 1}},
                                  "The service processor that is meant, if it is one.")},
                 {"text", Text("One line, for people.")}},
                {"severity", "code", "text"});
}

// Which class an instance is of says what it can have.
Json InstanceSchema() {
  Json names = Json::array();
  Json choices = Json::array();
  for (const cim::SchemaClass& schema : cim::SchemaClasses()) {
    names.push_back(schema.name);
    choices.push_back(
        {{"if", {{"properties", {{"class", {{"const", schema.name}}}}}, {"required", {"class"}}}},
         {"then", {{"$ref", "#/$defs/" + std::string(schema.name)}}}});
  }
  Json schema = Object({{"class", {{"enum", names}}}, {"properties", {{"type", "object"}}}},
                       {"class", "properties"});
  schema["allOf"] = choices;
  return schema;
}

Json ReportMembers() {
  return {
      {"format", {{"const", "strake-report/1"}}},
      {"strake", Text("The version of Strake.")},
      {"collected_at",
       {{"type", "string"},
        {"format", "date-time"},
        {"pattern", "^[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}Z$"},
        {"description", "The time before the first query, in UTC."}}},
      {"server", Object({{"name", Text("Of the description's file, or of the built-in server.")},
                         {"description", Text("As the server's description has it.")},
                         {"kind", Text("Which service processors it has.")}},
                        {"name", "description", "kind"})},
      {"findings", Described({{"type", "array"}, {"items", FindingSchema()}},
                             "What did not answer, and what is out of bounds; the gravest first.")},
      {"instances", Described({{"type", "array"}, {"items", InstanceSchema()}},
                              "In the order in which they were committed.")},
  };
}

}  // namespace

std::string JsonSchema() {
  Json schema{{"$schema", "https://json-schema.org/draft/2020-12/schema"},
              {"title", "strake-report/1"},
              {"description",
               "What strake collect --format json writes, and jsonl on each line but those "
               "of strake-error/1. Keys may be added."}};
  schema.update(Object(ReportMembers(),
                       {"format", "strake", "collected_at", "server", "findings", "instances"}));
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    schema["$defs"][std::string(one.name)] = ClassSchema(one);
  }
  return schema.dump(2) + '\n';
}

}  // namespace strake::schema
