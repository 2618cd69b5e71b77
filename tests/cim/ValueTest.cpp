#include "cim/StoredInstance.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace strake::cim {
namespace {

TEST(Value, KnowsItsTypeAndItsText) {
  const struct {
    Value value;
    CimType type;
    std::string text;
  } cases[] = {
      {"", CimType::String, ""},
      {std::string("a\0b", 3), CimType::String, std::string("a\0b", 3)},
      {std::int32_t{-2147483647 - 1}, CimType::Sint32, "-2147483648"},
      {std::uint16_t{65535}, CimType::Uint16, "65535"},
      {std::uint8_t{255}, CimType::Uint8, "255"},
      {DateTime("20100615134530.000000-120"), CimType::DateTime, "20100615134530.000000-120"},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(TypeOf(one.value), one.type) << one.text;
    EXPECT_EQ(ToText(one.value), one.text);
  }
}

TEST(Value, TakesDateTimesOf25Characters) {
  for (const std::size_t length : {0U, 24U, 26U}) {
    EXPECT_THROW(DateTime(std::string(length, '0')), std::length_error) << length;
  }
  EXPECT_EQ(DateTime(std::string(25, '0')).Text(), std::string(25, '0'));
}

TEST(StoredInstance, FindsAPropertyByNameAndType) {
  const SchemaClass& schema = *FindSchemaClass("VELKSG_SP_NumericSensor");
  const StoredInstance sensor{
      &schema, 1, {{FindSchemaProperty(schema, "BaseUnits"), std::uint16_t{5}}}};
  ASSERT_NE(FindValue(sensor, "BaseUnits"), nullptr);
  EXPECT_EQ(*FindValue(sensor, "BaseUnits"), Value(std::uint16_t{5}));
  EXPECT_EQ(FindValue(sensor, "UnitModifier"), nullptr);
  EXPECT_EQ(FindValueOf<std::int32_t>(sensor, "BaseUnits"), nullptr);
  ASSERT_NE(FindValueOf<std::uint16_t>(sensor, "BaseUnits"), nullptr);
  EXPECT_EQ(*FindValueOf<std::uint16_t>(sensor, "BaseUnits"), 5);
}

}  // namespace
}  // namespace strake::cim
