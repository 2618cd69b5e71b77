#include "app/PropertyFilter.h"

#include "app/ClassNames.h"
#include "app/Errors.h"
#include "app/NearestName.h"

#include <string_view>
#include <vector>

namespace strake::app {
namespace {

const cim::SchemaProperty& PropertyOf(const cim::SchemaClass& schema, const std::string& name) {
  if (const auto* const property = cim::FindSchemaProperty(schema, name)) {
    return *property;
  }
  std::vector<std::string_view> known;
  for (const cim::SchemaProperty& property : schema.properties) {
    known.push_back(property.name);
  }
  throw UsageError(std::string(schema.name) + " has no property '" + name + "'" +
                   DidYouMean(name, known));
}

}  // namespace

report::PropertyFilter ParsePropertyFilter(const std::string& text) {
  const std::size_t point = text.find('.');
  const std::size_t equals = text.find('=');
  if (point == std::string::npos || equals == std::string::npos || equals < point) {
    throw UsageError("'" + text + "' is no filter, expected CLASS.PROPERTY=GLOB");
  }
  const std::string className = text.substr(0, point);
  const auto* const schema = cim::FindClassByAnyName(className);
  if (schema == nullptr) {
    throw UsageError(RefusalOfClass(className));
  }
  return {schema, &PropertyOf(*schema, text.substr(point + 1, equals - point - 1)),
          text.substr(equals + 1)};
}

}  // namespace strake::app
