#include "cim/Catalogue.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace strake::cim {
namespace {

std::string KeysOf(const SchemaClass& schemaClass) {
  std::string keys;
  for (const SchemaProperty& property : schemaClass.properties) {
    if (property.role == Role::Key) {
      keys += keys.empty() ? "" : " ";
      keys += property.name;
    }
  }
  return keys;
}

TEST(Catalogue, HasTheEightClassesWithTheirKeysGroupsAndNumbers) {
  const std::string endpoint =
      "CreationClassName SourceNode Name SystemCreationClassName SystemName";
  const struct {
    const char* name;
    std::string keys;
    std::size_t properties;
    QueryGroup group;
    const char* number;
  } expected[] = {
      {"VELKSG_SP_ComputerSystem", "CreationClassName SourceNode Name", 4,
       QueryGroup::ComputerSystem, ""},
      {"VELKSG_ServProc_IPProtocolEndpoint", endpoint, 22, QueryGroup::Network, "instance"},
      {"VELKSG_ServProc_IPProtocolEndpoint2", endpoint, 34, QueryGroup::Network, ""},
      {"VELKSG_ServProc_DialProtocolEndpoint1", endpoint + " Instance", 17, QueryGroup::Dial,
       "Instance"},
      {"VELKSG_ServProc_DialProtocolEndpoint2", endpoint + " Instance", 20, QueryGroup::Dial,
       "Instance"},
      {"VELKSG_ServProc_DialProtocolEndpoint3", endpoint + " Instance", 22, QueryGroup::Dial,
       "Instance"},
      {"VELKSG_ServProc_DialProtocolEndpoint4", endpoint, 12, QueryGroup::Dial, ""},
      {"VELKSG_SP_NumericSensor",
       "CreationClassName SourceNode SystemCreationClassName SystemName DeviceID", 9,
       QueryGroup::Sensors, ""},
  };
  ASSERT_EQ(SchemaClasses().size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const SchemaClass& schemaClass = SchemaClasses()[i];
    EXPECT_EQ(schemaClass.name, expected[i].name);
    EXPECT_EQ(KeysOf(schemaClass), expected[i].keys) << expected[i].name;
    EXPECT_EQ(schemaClass.properties.size(), expected[i].properties) << expected[i].name;
    EXPECT_EQ(schemaClass.group, expected[i].group) << expected[i].name;
    EXPECT_EQ(schemaClass.number, expected[i].number) << expected[i].name;
    EXPECT_EQ(FindSchemaClass(expected[i].name), &schemaClass);
  }
}

TEST(Catalogue, NamesEachPropertyOfAClassOnce) {
  for (const SchemaClass& schemaClass : SchemaClasses()) {
    std::set<std::string_view> names;
    for (const SchemaProperty& property : schemaClass.properties) {
      EXPECT_TRUE(names.insert(property.name).second) << property.name;
      EXPECT_EQ(FindSchemaProperty(schemaClass, property.name), &property);
    }
    EXPECT_LE(names.size(), kMostProperties);
  }
}

TEST(Catalogue, GivesEveryPropertyItsType) {
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

TEST(Catalogue, ComparesNamesExactly) {
  EXPECT_EQ(FindSchemaClass("velksg_sp_computersystem"), nullptr);
  EXPECT_EQ(FindSchemaClass("VELKSG_ServProc_DialProtocolEndpoint"), nullptr);
  EXPECT_EQ(FindSchemaClass(""), nullptr);
  const SchemaClass& interface = *FindSchemaClass("VELKSG_ServProc_IPProtocolEndpoint");
  EXPECT_NE(FindSchemaProperty(interface, "instance"), nullptr);
  EXPECT_EQ(FindSchemaProperty(interface, "Instance"), nullptr);
  EXPECT_EQ(FindSchemaProperty(interface, "LineType"), nullptr);
}

TEST(Catalogue, CallsPasswordsPinsAndCommunityNamesSecretAndNothingElse) {
  std::string secrets;
  for (const SchemaClass& schemaClass : SchemaClasses()) {
    for (const SchemaProperty& property : schemaClass.properties) {
      if (property.role == Role::Secret) {
        EXPECT_EQ(property.type, CimType::String) << property.name;
        secrets += std::string(property.name) + " ";
      }
    }
  }
  EXPECT_EQ(secrets,
            "Community1Name Community2Name Community3Name DialoutPassword PagerPIN PPPPassword ");
}

TEST(Catalogue, GroupsClassesByTheQueryThatBringsThemInThePlugInsPrecedence) {
  using Names = std::vector<std::string>;
  const Names expected[] = {
      {"VELKSG_ServProc_IPProtocolEndpoint", "VELKSG_ServProc_IPProtocolEndpoint2"},
      {"VELKSG_ServProc_DialProtocolEndpoint1", "VELKSG_ServProc_DialProtocolEndpoint2",
       "VELKSG_ServProc_DialProtocolEndpoint3", "VELKSG_ServProc_DialProtocolEndpoint4"},
      {"VELKSG_SP_NumericSensor"},
      {"VELKSG_SP_ComputerSystem"},
  };
  ASSERT_EQ(kQueryGroups.size(), std::size(expected));
  for (std::size_t i = 0; i < kQueryGroups.size(); ++i) {
    EXPECT_EQ(ClassNamesOf(kQueryGroups.at(i)), expected[i]);
  }
}

// A text that MOF, JSON, XML and a terminal take as it is.
void ExpectText(std::string_view text, std::string_view of) {
  EXPECT_FALSE(text.empty()) << of;
  for (const char character : text) {
    EXPECT_TRUE(character >= ' ' && character <= '~' && character != '"' && character != '\\')
        << of << ": " << text;
  }
}

TEST(Catalogue, HasAPlainTextForEverythingThatIsShown) {
  for (const SchemaClass& schemaClass : SchemaClasses()) {
    ExpectText(schemaClass.title, schemaClass.name);
    ExpectText(schemaClass.description, schemaClass.name);
    EXPECT_TRUE(schemaClass.description.ends_with('.')) << schemaClass.name;
    std::set<std::string_view> labels;
    for (const SchemaProperty& property : schemaClass.properties) {
      ExpectText(property.label, property.name);
      ExpectText(property.description, property.name);
      EXPECT_TRUE(property.description.ends_with('.')) << property.name;
      EXPECT_TRUE(labels.insert(property.label).second) << schemaClass.name << property.label;
    }
  }
}

TEST(Catalogue, NumbersInstancesByPropertiesThatItHas) {
  for (const SchemaClass& schemaClass : SchemaClasses()) {
    EXPECT_EQ(FindSchemaProperty(schemaClass, schemaClass.number) != nullptr,
              !schemaClass.number.empty())
        << schemaClass.name;
  }
}

}  // namespace
}  // namespace strake::cim
