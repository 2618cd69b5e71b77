#include "platform/server/ElementRecord.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace strake::platform {
namespace {

TEST(ElementRecord, WritesAPlainElement) {
  EXPECT_EQ(PlainElement(7, 255, ""), std::string("\x07\xFF\x00", 3));
  EXPECT_EQ(PlainElement(0, 1, "ab"), std::string("\x00\x01\x02"
                                                  "ab",
                                                  5));
  EXPECT_EQ(PlainElement(1, 2, std::string(255, 'd')), "\x01\x02\xFF" + std::string(255, 'd'));
}

TEST(ElementRecord, WritesAStringElementWithItsMaximumAndAZero) {
  EXPECT_EQ(StringElement(7, 1, "abc", 9), std::string("\x07\x01\x05\x09"
                                                       "abc\0",
                                                       8));
  EXPECT_EQ(StringElement(0, 0, "", 0), std::string("\0\0\x02\0\0", 5));
}

TEST(ElementRecord, RefusesDataThatItsLengthByteCannotSay) {
  EXPECT_THROW(PlainElement(0, 0, std::string(256, 'd')), std::length_error);
  EXPECT_NO_THROW(StringElement(0, 0, std::string(253, 't'), 0));
  EXPECT_THROW(StringElement(0, 0, std::string(254, 't'), 0), std::length_error);
}

}  // namespace
}  // namespace strake::platform
