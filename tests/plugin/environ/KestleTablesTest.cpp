// The fixed tables of the Tavit readers, as they stand. What they make of
// replies is tested with the readers.
#include "plugin/environ/KestleSensors.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace strake::tests {
namespace {

std::string Row(const KestleListLayout& layout) {
  return std::string(layout.family) + " " + std::to_string(layout.expectedLength) + " from " +
         std::to_string(layout.firstByte) + ": " + std::to_string(layout.names.size());
}

TEST(KestleTables, VoltageListsHaveTheirFamiliesLengths) {
  const char* const rows[] = {"Pilkar/Mossel/Fendra 18 from 4: 7", "Tessil 18 from 4: 7",
                              "Nembro 16 from 4: 6", "Blade 30 from 4: 13"};
  for (std::size_t i = 0; i < kKestleFamilies; ++i) {
    EXPECT_EQ(Row(kKestleVoltages[i]), rows[i]);
  }
}

TEST(KestleTables, TemperatureListsHaveTheirFamiliesLengths) {
  const char* const rows[] = {"Pilkar/Mossel/Fendra 10 from 6: 4", "Tessil 12 from 6: 6",
                              "Nembro 18 from 6: 7", "Blade 9 from 5: 4"};
  for (std::size_t i = 0; i < kKestleFamilies; ++i) {
    EXPECT_EQ(Row(kKestleTemperatures[i]), rows[i]);
  }
}

TEST(KestleTables, TheSecondNembroTemperatureIsThreeNamesRunTogether) {
  ASSERT_EQ(kKestleTemperatures[2].names.size(), 7U);
  EXPECT_STREQ(kKestleTemperatures[2].names[1],
               "Processor Area TemperaturePCI Area TemperatureCPU 1 Temperature");
  EXPECT_STREQ(kKestleTemperatures[2].names[6], "DASD 2 Temperature");
}

TEST(KestleTables, NineFanNamesServeAllFamilies) {
  ASSERT_EQ(std::size(kKestleFanNames), 9U);
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(kKestleFanNames[i], "Fan " + std::to_string(i + 1));
  }
  EXPECT_EQ(kBladeFamily, 3U);
}

}  // namespace
}  // namespace strake::tests
