// The classes in the Managed Object Format, read back.
#include "cim/Catalogue.h"
#include "schema/MofClasses.h"
#include "tests/support/ReadBack.h"

#include <gtest/gtest.h>
#include <map>

namespace strake::tests {
namespace {

using nlohmann::ordered_json;

ordered_json ExpectedQualifiers(const cim::SchemaProperty& property) {
  ordered_json qualifiers = ordered_json::object();
  if (property.role == cim::Role::Key) qualifiers["Key"] = true;
  qualifiers["Description"] = property.description;
  if (property.maximumLength != 0) qualifiers["MaxLen"] = property.maximumLength;
  if (!property.units.empty()) qualifiers["Units"] = property.units;
  return qualifiers;
}

TEST(MofClasses, AreTheCataloguesWithEveryProperty) {
  const MofFile file = ReadMof(schema::MofClasses());
  ASSERT_EQ(file.classes.size(), cim::SchemaClasses().size());
  EXPECT_TRUE(file.instances.empty());
  for (std::size_t i = 0; i < file.classes.size(); ++i) {
    const cim::SchemaClass& expected = cim::SchemaClasses()[i];
    const ordered_json& read = file.classes[i];
    EXPECT_EQ(read.at("name"), expected.name);
    EXPECT_EQ(read.at("qualifiers"), ordered_json({{"Description", expected.description}}));
    ASSERT_EQ(read.at("properties").size(), expected.properties.size());
    for (std::size_t j = 0; j < expected.properties.size(); ++j) {
      const cim::SchemaProperty& property = expected.properties[j];
      EXPECT_EQ(read.at("properties")[j].at("name"), property.name);
      EXPECT_EQ(read.at("properties")[j].at("type"), cim::CimTypeName(property.type));
      EXPECT_EQ(read.at("properties")[j].at("qualifiers"), ExpectedQualifiers(property));
    }
  }
}

TEST(MofClasses, DeclareTheQualifiersThatTheyUseBeforeThemAndNoOthers) {
  const std::string mof = schema::MofClasses();
  const MofFile file = ReadMof(mof);
  std::set<std::string> used;
  for (const ordered_json& one : file.classes) {
    for (const auto& [name, value] : one.at("qualifiers").items()) used.insert(name);
    for (const ordered_json& property : one.at("properties")) {
      for (const auto& [name, value] : property.at("qualifiers").items()) used.insert(name);
    }
  }
  std::set<std::string> declared;
  for (const ordered_json& one : file.qualifiers) declared.insert(one.at("name"));
  EXPECT_EQ(declared, used);
  EXPECT_LT(mof.rfind("\nQualifier "), mof.find("\nclass "));
}

TEST(MofClasses, DeclareQualifiersAsTheStandardDoes) {
  const std::map<std::string, std::string> expected = {
      {"Key", R"({"name":"Key","type":"boolean","value":false,"scope":["property","reference"],)"
              R"("flavor":["DisableOverride","ToSubclass"]})"},
      {"Description", R"({"name":"Description","type":"string","value":null,"scope":["any"],)"
                      R"("flavor":["EnableOverride","ToSubclass","Translatable"]})"},
      {"MaxLen",
       R"({"name":"MaxLen","type":"uint32","value":null,)"
       R"("scope":["property","method","parameter"],"flavor":["EnableOverride","ToSubclass"]})"},
      {"Units", R"({"name":"Units","type":"string","value":null,)"
                R"("scope":["property","method","parameter"],)"
                R"("flavor":["EnableOverride","ToSubclass","Translatable"]})"},
  };
  for (const ordered_json& one : ReadMof(schema::MofClasses()).qualifiers) {
    EXPECT_EQ(one.dump(), expected.at(one.at("name")));
  }
}

TEST(MofClasses, LookAsPeopleWriteThem) {
  const std::string mof = schema::MofClasses();
  EXPECT_TRUE(mof.starts_with("// The classes that Strake reports.\n\nQualifier Key : boolean"));
  EXPECT_NE(mof.find(R"(
[Description("A service processor and its clock.")]
class VELKSG_SP_ComputerSystem {
    [Key, Description("The name of the class, or of the family of classes, that the instance was made as.")]
    string CreationClassName;

    [Key, Description("The number of the service processor that the instance came from.")]
    uint8 SourceNode;
)"),
            std::string::npos);
  EXPECT_NE(mof.find(R"(
    [Description("The configured IP address of the interface."), MaxLen(15)]
    string HostIPAddress;
)"),
            std::string::npos);
  EXPECT_NE(mof.find("MaxLen(17)]\n    string BurnedInMACAddress;\n"), std::string::npos);
  EXPECT_NE(mof.find("Units(\"bits per second\")]\n    string BaudRate;\n"), std::string::npos);
}

}  // namespace
}  // namespace strake::tests
