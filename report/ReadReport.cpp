#include "report/ReadReport.h"

#include "json/Field.h"
#include "json/Reader.h"
#include "report/Timestamp.h"
#include "text/InputError.h"
#include "text/TextEscape.h"

#include <limits>

namespace strake::report {
namespace {

using json::Field;

constexpr std::string_view kFormat = "strake-report/1";
constexpr int kDeepest = 16;
constexpr std::size_t kMostValues = 8'000'000;

template <typename Number>
cim::Value ReadNumber(const Field& field) {
  return static_cast<Number>(
      field.Integer(std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()));
}

cim::Value ReadDateTime(const Field& field) {
  if (field.Text().size() != cim::DateTime::kLength) {
    field.Refuse("the 25 characters of a date-time");
  }
  return cim::DateTime(field.Text());
}

cim::Value ReadValue(const Field& field, cim::CimType type) {
  switch (type) {
    case cim::CimType::String:
      break;
    case cim::CimType::Sint32:
      return ReadNumber<std::int32_t>(field);
    case cim::CimType::Uint16:
      return ReadNumber<std::uint16_t>(field);
    case cim::CimType::Uint8:
      return ReadNumber<std::uint8_t>(field);
    case cim::CimType::DateTime:
      return ReadDateTime(field);
  }
  return field.Text();
}

cim::StoredInstance ReadInstance(const Field& field) {
  cim::StoredInstance instance;
  const Field name = field.Require("class");
  instance.schema = cim::FindSchemaClass(name.Text());
  if (instance.schema == nullptr) {
    name.Refuse("a class that this version knows");
  }
  const Field properties = field.Require("properties");
  properties.ForEachMember([&instance](const std::string& key, const Field& member) {
    if (cim::FindSchemaProperty(*instance.schema, key) == nullptr) {
      member.Refuse("no property but those of " + std::string(instance.schema->name));
    }
  });
  for (const cim::SchemaProperty& property : instance.schema->properties) {
    if (const auto value = properties.Find(std::string(property.name).c_str())) {
      instance.properties.push_back({&property, ReadValue(*value, property.type)});
    }
  }
  return instance;
}

}  // namespace

ReadReport ParseReport(std::string_view text, const std::string& source) {
  const std::string name = text::EscapeForPeople(source);
  if (text.size() > kMostReportBytes) {
    throw text::InputError(name + ": expected at most 256 MiB, got more");
  }
  const json::Value value = json::Read(text, name, {kDeepest, kMostValues});
  const Field root(value, name);
  if (!root.IsObject()) {
    root.Refuse("an object");
  }
  const Field format = root.Require("format");
  if (format.Text() != kFormat) {
    format.Refuse('"' + std::string(kFormat) + '"');
  }
  ReadReport report;
  report.server = root.Require("server").Require("name").Text();
  const Field collectedAt = root.Require("collected_at");
  const auto moment = ParseTimestamp(collectedAt.Text());
  if (!moment) {
    collectedAt.Refuse("a time like \"2024-03-18T09:41:27Z\"");
  }
  report.collectedAt = *moment;
  root.Require("instances").ForEachItem([&report](const Field& instance) {
    report.instances.push_back(ReadInstance(instance));
  });
  return report;
}

}  // namespace strake::report
