// The fixed tables of the Tavit readers, as they stand. What they make of
// replies is tested with the readers.
#include "plugin/environ/KestleSensors.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

std::string Row(const TavitFamily& family, const KestleListLayout& layout) {
  return std::string(family.name) + " " + std::to_string(layout.expectedLength) + " from " +
         std::to_string(layout.firstByte) + ": " + std::to_string(layout.names.size());
}

std::vector<std::string> Rows(KestleListLayout TavitFamily::*list) {
  std::vector<std::string> rows;
  for (const TavitFamily& family : kTavitFamilies) {
    rows.push_back(Row(family, family.*list));
  }
  return rows;
}

TEST(KestleTables, VoltageListsHaveTheirFamiliesLengths) {
  EXPECT_EQ(Rows(&TavitFamily::voltages),
            (std::vector<std::string>{"Pilkar/Mossel/Fendra 18 from 4: 7", "Tessil 18 from 4: 7",
                                      "Nembro 16 from 4: 6", "Blade 30 from 4: 13"}));
}

TEST(KestleTables, TemperatureListsHaveTheirFamiliesLengths) {
  EXPECT_EQ(Rows(&TavitFamily::temperatures),
            (std::vector<std::string>{"Pilkar/Mossel/Fendra 10 from 6: 4", "Tessil 12 from 6: 6",
                                      "Nembro 18 from 6: 7", "Blade 9 from 5: 4"}));
}

TEST(KestleTables, FansHaveAFamilyNameOfTheirOwnAndBladesHaveNone) {
  std::vector<std::string> names;
  for (const TavitFamily& family : kTavitFamilies) {
    names.emplace_back(family.fans ? family.fans->family : "none");
  }
  EXPECT_EQ(names,
            (std::vector<std::string>{"Pilkar/Mossel/Fendra", "Tessil/Varnel", "Nembro", "none"}));
}

TEST(KestleTables, TheSecondNembroTemperatureIsThreeNamesRunTogether) {
  const std::span<const char* const> names = kTavitFamilies[2].temperatures.names;
  ASSERT_EQ(names.size(), 7U);
  EXPECT_STREQ(names[1], "Processor Area TemperaturePCI Area TemperatureCPU 1 Temperature");
  EXPECT_STREQ(names[6], "DASD 2 Temperature");
}

TEST(KestleTables, NineFanNamesServeAllFamilies) {
  ASSERT_EQ(std::size(kKestleFanNames), 9U);
  for (std::size_t i = 0; i < std::size(kKestleFanNames); ++i) {
    EXPECT_EQ(kKestleFanNames[i], "Fan " + std::to_string(i + 1));
  }
}

}  // namespace
}  // namespace strake::tests
