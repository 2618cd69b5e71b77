#include "cim/Catalogue.h"
#include "platform/hostcore/RepositoryInstance.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace strake::cim {
namespace {

std::string KeysOf(const SchemaClass& schemaClass) {
  std::string keys;
  for (const SchemaProperty& property : schemaClass.properties) {
    if (property.isKey) {
      keys += keys.empty() ? "" : " ";
      keys += property.name;
    }
  }
  return keys;
}

TEST(Schema, HasTheEightClassesWithTheirKeys) {
  const std::string endpoint =
      "CreationClassName SourceNode Name SystemCreationClassName SystemName";
  const struct {
    const char* name;
    std::string keys;
    std::size_t properties;
  } expected[] = {
      {"VELKSG_SP_ComputerSystem", "CreationClassName SourceNode Name", 4},
      {"VELKSG_ServProc_IPProtocolEndpoint", endpoint, 22},
      {"VELKSG_ServProc_IPProtocolEndpoint2", endpoint, 34},
      {"VELKSG_ServProc_DialProtocolEndpoint1", endpoint + " Instance", 17},
      {"VELKSG_ServProc_DialProtocolEndpoint2", endpoint + " Instance", 20},
      {"VELKSG_ServProc_DialProtocolEndpoint3", endpoint + " Instance", 22},
      {"VELKSG_ServProc_DialProtocolEndpoint4", endpoint, 12},
      {"VELKSG_SP_NumericSensor",
       "CreationClassName SourceNode SystemCreationClassName SystemName DeviceID", 9},
  };
  ASSERT_EQ(SchemaClasses().size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const SchemaClass& schemaClass = SchemaClasses()[i];
    EXPECT_EQ(schemaClass.name, expected[i].name);
    EXPECT_EQ(KeysOf(schemaClass), expected[i].keys) << expected[i].name;
    EXPECT_EQ(schemaClass.properties.size(), expected[i].properties) << expected[i].name;
    EXPECT_EQ(FindSchemaClass(expected[i].name), &schemaClass);
  }
}

TEST(Schema, NamesEachPropertyOfAClassOnce) {
  for (const SchemaClass& schemaClass : SchemaClasses()) {
    std::set<std::string_view> names;
    for (const SchemaProperty& property : schemaClass.properties) {
      EXPECT_TRUE(names.insert(property.name).second) << property.name;
      EXPECT_EQ(FindSchemaProperty(schemaClass, property.name), &property);
    }
    EXPECT_LE(names.size(), platform::kMostProperties);
  }
}

TEST(Schema, GivesEveryPropertyItsType) {
  for (const SchemaClass& schemaClass : SchemaClasses()) {
    for (const SchemaProperty& property : schemaClass.properties) {
      std::string_view expected = "string";
      if (property.name == "SourceNode") {
        expected = "uint8";
      }
      if (property.name == "SPClock" || property.name == "LastLogin") {
        expected = "datetime";
      }
      if (property.name == "CurrentReading" || property.name == "UnitModifier") {
        expected = "sint32";
      }
      if (property.name == "BaseUnits") {
        expected = "uint16";
      }
      EXPECT_EQ(CimTypeName(property.type), expected) << schemaClass.name << ' ' << property.name;
    }
  }
}

TEST(Schema, ComparesNamesExactly) {
  EXPECT_EQ(FindSchemaClass("velksg_sp_computersystem"), nullptr);
  EXPECT_EQ(FindSchemaClass("VELKSG_ServProc_DialProtocolEndpoint"), nullptr);
  EXPECT_EQ(FindSchemaClass(""), nullptr);
  const SchemaClass& interface = *FindSchemaClass("VELKSG_ServProc_IPProtocolEndpoint");
  EXPECT_NE(FindSchemaProperty(interface, "instance"), nullptr);
  EXPECT_EQ(FindSchemaProperty(interface, "Instance"), nullptr);
  EXPECT_EQ(FindSchemaProperty(interface, "LineType"), nullptr);
}

}  // namespace
}  // namespace strake::cim
