#include "text/DotNotation.h"

#include <array>
#include <gtest/gtest.h>

namespace strake::text {
namespace {

TEST(DotNotation, JoinsTheBytesWithoutAPointAtTheEnd) {
  EXPECT_EQ(DotNotation({}), "");
  EXPECT_EQ(DotNotation(std::array<unsigned char, 1>{0}), "0");
  EXPECT_EQ(DotNotation(std::array<unsigned char, 5>{4, 9, 1, 1, 255}), "4.9.1.1.255");
}

TEST(DotNotation, IsReadWhenItIsWrittenExactlySo) {
  for (const char* text : {"0", "255", "4.4.1", "4.9.3.1.4.255", "0.0.0", "1.2.3.4.5.6.7.8"}) {
    const auto identifier = ParseDotNotation(text);
    ASSERT_TRUE(identifier) << text;
    EXPECT_EQ(DotNotationOf(*identifier), text);
  }
}

TEST(DotNotation, IsRefusedInEveryOtherSpelling) {
  for (const char* text :
       {"",     ".",    "4.",  ".4",    "4..1",   "4.4.1.", "04",
        "4.00", "4.01", "256", "4.256", "4.1000", "-1",     "+4",
        "4. 1", " 4",   "4 ",  "4,1",   "a",      "0x4",    "99999999999999999999"}) {
    EXPECT_FALSE(ParseDotNotation(text)) << text;
  }
}

}  // namespace
}  // namespace strake::text
