// The JSON report's schema.
#include "cim/Catalogue.h"
#include "schema/JsonSchema.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

TEST(JsonSchema, DescribesEveryPropertyOfEveryClass) {
  const ordered_json schema = ordered_json::parse(schema::JsonSchema());
  EXPECT_EQ(schema.at("$schema"), "https://json-schema.org/draft/2020-12/schema");
  EXPECT_EQ(schema.at("$defs").size(), cim::SchemaClasses().size());
  for (const cim::SchemaClass& one : cim::SchemaClasses()) {
    const ordered_json& properties =
        schema.at("$defs").at(one.name).at("properties").at("properties").at("properties");
    EXPECT_EQ(properties.size(), one.properties.size());
    for (const cim::SchemaProperty& property : one.properties) {
      const std::string description = properties.at(property.name).at("description");
      EXPECT_TRUE(description.starts_with(property.description));
      EXPECT_EQ(description.find("********") != std::string::npos,
                property.role == cim::Role::Secret)
          << property.name;
    }
  }
}

}  // namespace
}  // namespace strake::tests
