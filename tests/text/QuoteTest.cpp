#include "text/Quote.h"

#include <gtest/gtest.h>

namespace strake::text {
namespace {

TEST(Quote, ShowsForeignTextInPrintableAscii) {
  EXPECT_EQ(Quoted(""), "\"\"");
  EXPECT_EQ(Quoted("plain"), "\"plain\"");
  EXPECT_EQ(Quoted("a\nb\x1b[0m\x7f\xc3\xa9"), "\"a\\x0Ab\\x1B[0m\\x7F\\xC3\\xA9\"");
}

TEST(Quote, LeavesOutTheMiddleOfALongText) {
  EXPECT_EQ(Printable(std::string(160, 'a')), std::string(160, 'a'));
  EXPECT_EQ(Printable(std::string(100, 'a') + std::string(1000, 'b')),
            std::string(78, 'a') + "..." + std::string(78, 'b'));
}

}  // namespace
}  // namespace strake::text
