// Texts out of parts: what each part reads as.
#include "plugin/frame/base/Text.h"

#include <array>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <span>
#include <string>

namespace strake::tests {
namespace {

template <typename Number>
void ExpectExtremes() {
  using Limits = std::numeric_limits<Number>;
  for (const Number number : {Limits::min(), Number{0}, Number{1}, Limits::max()}) {
    EXPECT_EQ(MakeText(number), std::to_string(number));
  }
}

TEST(Text, NumbersOfEveryTypeAreDecimalFromTheirLeastToTheirGreatest) {
  ExpectExtremes<signed char>();
  ExpectExtremes<unsigned char>();
  ExpectExtremes<short>();
  ExpectExtremes<unsigned short>();
  ExpectExtremes<int>();
  ExpectExtremes<unsigned int>();
  ExpectExtremes<long>();
  ExpectExtremes<unsigned long>();
  ExpectExtremes<long long>();
  ExpectExtremes<unsigned long long>();
}

TEST(Text, FlagsAreOneOrZero) {
  EXPECT_EQ(MakeText(true), "1");
  EXPECT_EQ(MakeText(false), "0");
}

TEST(Text, BytesAreUnsignedDecimal) {
  for (int byte = 0; byte <= 255; ++byte) {
    EXPECT_EQ(MakeText(static_cast<unsigned char>(byte)), std::to_string(byte));
  }
}

TEST(Text, AddressesAreHexadecimalWithoutLeadingZeros) {
  // Any bits will do: nobody looks behind them.
  const auto address = [](std::uintptr_t bits) {
    return AddressText{reinterpret_cast<const void*>(bits)};  // NOLINT(performance-no-int-to-ptr)
  };
  EXPECT_EQ(MakeText(address(0)), "0x0");
  EXPECT_EQ(MakeText(address(0x7ffe10)), "0x7ffe10");
  EXPECT_EQ(MakeText(address(std::numeric_limits<std::uintptr_t>::max())), "0xffffffffffffffff");
}

TEST(Text, ByteListsHaveACharacterBehindEachByte) {
  const std::array<unsigned char, 4> bytes = {0, 9, 10, 255};
  EXPECT_EQ(MakeText(ByteListText{.bytes = bytes, .behind = '.'}), "0.9.10.255.");
  EXPECT_EQ(MakeText(ByteListText{.bytes = {}, .behind = ' '}), "");
  const std::array<unsigned char, 3> longest = {255, 255, 255};
  EXPECT_EQ(MakeText(ByteListText{.bytes = longest, .behind = ' '}), "255 255 255 ");
}

TEST(Text, IsMadeOfAnyNumberOfParts) {
  const std::string text = "text";
  const char* const characters = "characters";
  EXPECT_EQ(MakeText("[", text, "] ", characters, " ", std::string_view("view"), -5),
            "[text] characters view-5");
}

TEST(Text, OfEmptyPartsIsEmpty) { EXPECT_EQ(MakeText("", std::string(), std::string_view()), ""); }

TEST(Text, ReplacesTheTextBeforeItWhetherThatWasLongerOrShorter) {
  std::string text;
  for (const std::string& part : {std::string(300, 'a'), std::string("b"), std::string(),
                                  std::string(40, 'c'), std::string(1000, 'd')}) {
    SetText(text, part, 1);
    EXPECT_EQ(text, part + '1');
  }
}

TEST(Text, ZeroBytesOfAStringAreTakenAlong) {
  const std::string text("a\0b", 3);
  EXPECT_EQ(MakeText(text, "."), std::string("a\0b.", 4));
}

}  // namespace
}  // namespace strake::tests
