// Dot commands as people write them.
#include "plugin/spaccess/DotIdentifier.h"

#include <gtest/gtest.h>
#include <vector>

namespace strake::tests {
namespace {

std::string Written(const std::vector<unsigned char>& identifier) {
  return MakeText(DotCommandText(identifier));
}

TEST(DotCommandText, EachByteIsDecimalAndFollowedByAPoint) {
  EXPECT_EQ(Written({1, 1}), "1.1.");
  EXPECT_EQ(Written({4, 4, 2}), "4.4.2.");
  EXPECT_EQ(Written({4, 9, 1, 1, 255}), "4.9.1.1.255.");
  EXPECT_EQ(Written({4, 9, 1, 1, 16, 9}), "4.9.1.1.16.9.");
  EXPECT_EQ(Written({}), "");
}

TEST(DotCommandText, EveryByteHasItsOwnNumber) {
  for (int byte = 0; byte <= 255; ++byte) {
    EXPECT_EQ(Written({static_cast<unsigned char>(byte)}), std::to_string(byte) + ".");
  }
}

}  // namespace
}  // namespace strake::tests
