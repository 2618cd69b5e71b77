#include "text/HexBytes.h"

#include <gtest/gtest.h>

namespace strake::text {
namespace {

TEST(HexBytes, TakesPairsWithWhiteSpaceAroundThem) {
  EXPECT_EQ(ParseHexBytes(""), "");
  EXPECT_EQ(ParseHexBytes(" \t\r\n"), "");
  EXPECT_EQ(ParseHexBytes("F4 01"), "\xF4\x01");
  EXPECT_EQ(ParseHexBytes("f401aBCd"), "\xF4\x01\xAB\xCD");
  EXPECT_EQ(ParseHexBytes("\n F4\t\t01 "), "\xF4\x01");
  EXPECT_EQ(ParseHexBytes("00"), std::string(1, '\0'));
}

TEST(HexBytes, RefusesAnythingElse) {
  for (const char* text :
       {"F", "F4 0", "F 4", "0x12", "G0", "0G", "F4,01", "F4-01", "F4 01 2", "\xC2\xA0"}) {
    EXPECT_FALSE(ParseHexBytes(text)) << text;
  }
}

TEST(HexBytes, ReadsEveryByteInBothCases) {
  for (unsigned byte = 0; byte < 256; ++byte) {
    for (const char* digits : {"0123456789abcdef", "0123456789ABCDEF"}) {
      const std::string text{digits[byte / 16], digits[byte % 16]};
      EXPECT_EQ(ParseHexBytes(text), std::string(1, static_cast<char>(byte)));
    }
  }
}

TEST(HexBytes, WritesEveryByteAsItIsRead) {
  for (unsigned byte = 0; byte < 256; ++byte) {
    std::string pair;
    AppendHexPair(pair, static_cast<unsigned char>(byte));
    EXPECT_EQ(pair, (std::string{"0123456789ABCDEF"[byte / 16], "0123456789ABCDEF"[byte % 16]}));
  }
}

}  // namespace
}  // namespace strake::text
