#include "cim/EqualKeys.h"

#include <gtest/gtest.h>
#include <map>

namespace strake::cim {
namespace {

StoredInstance Of(std::string_view className, const std::map<std::string, Value>& values) {
  StoredInstance instance{FindSchemaClass(className), 0, {}};
  for (const auto& [name, value] : values) {
    instance.properties.push_back({FindSchemaProperty(*instance.schema, name), value});
  }
  return instance;
}

StoredInstance System(const std::map<std::string, Value>& values) {
  return Of("VELKSG_SP_ComputerSystem", values);
}

TEST(EqualKeys, AreToldInTheOrderOfTheirFirstInstances) {
  const Value one = std::uint8_t{1};
  const std::vector<StoredInstance> instances = {
      System({{"Name", "b"}, {"SourceNode", one}}),
      System({{"Name", "a"}}),
      System({{"Name", "a"}, {"SPClock", DateTime(std::string(25, '0'))}}),
      Of("VELKSG_SP_NumericSensor", {{"SourceNode", one}}),
      System({{"SourceNode", one}, {"Name", "b"}}),
      System({{"Name", "b"}, {"SourceNode", one}}),
  };
  const std::vector<EqualKeys> found = FindEqualKeys(instances);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].schema->name, "VELKSG_SP_ComputerSystem");
  EXPECT_EQ(found[0].keys, "SourceNode=1, Name=b");
  EXPECT_EQ(found[0].count, 3U);
  EXPECT_EQ(found[1].keys, "Name=a");
  EXPECT_EQ(found[1].count, 2U);
}

TEST(EqualKeys, AreEqualInEachKey) {
  const std::vector<StoredInstance> instances = {
      System({{"Name", "a"}}),
      System({{"Name", "a"}, {"SourceNode", std::uint8_t{0}}}),
      System({{"Name", "a"}, {"SourceNode", std::uint8_t{1}}}),
      System({{"Name", "a"}, {"SourceNode", std::uint8_t{2}}}),
      System({{"Name", "a"}, {"CreationClassName", "c"}}),
      System({{"Name", ""}}),
      System({}),
      Of("VELKSG_SP_NumericSensor", {}),
  };
  EXPECT_TRUE(FindEqualKeys(instances).empty());
}

}  // namespace
}  // namespace strake::cim
