// Text that is safe to write.
#include "text/TextEscape.h"
#include "text/Utf8.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <span>

namespace strake::tests {
namespace {

using text::CountCodePoints;
using text::EscapeForPeople;
using text::EscapeJson;
using text::ToValidUtf8;

struct Case {
  std::string text;
  std::string expected;
};

TEST(TextEscape, ShowsControlBytesAsTextAndLeavesTheRest) {
  const std::vector<Case> cases = {
      {"", ""},
      {"plain", "plain"},
      {"27.00 °C", "27.00 °C"},
      {"a\\b", "a\\b"},
      {"one\ntwo\ttab\rback", "one\\ntwo\\ttab\\rback"},
      {"\x1b[31mred", "\\x1B[31mred"},
      {std::string("\0", 1), "\\x00"},
      {"\x7f", "\\x7F"},
      {"%n%s", "%n%s"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(EscapeForPeople(one.text), one.expected);
  }
}

TEST(TextEscape, ShowsCharactersThatATerminalWouldObeyAsTheirBytes) {
  const std::vector<Case> cases = {
      {"\xC2\x80", "\\xC2\\x80"},  // the first eight-bit control
      {"\xC2\x9B"
       "31m",
       "\\xC2\\x9B"
       "31m"},                   // an escape sequence in one character
      {"\xC2\xA0", "\xC2\xA0"},  // the first that is none
      {"\xE2\x80\xAE"
       "abc",
       "\\xE2\\x80\\xAE"
       "abc"},                              // right-to-left override
      {"\xE2\x81\xA6", "\\xE2\\x81\\xA6"},  // left-to-right isolate
      {"\xD8\x9C", "\\xD8\\x9C"},           // Arabic letter mark
      {"\xE2\x80\xA8", "\\xE2\\x80\\xA8"},  // line separator
      {"\xEF\xBB\xBF", "\\xEF\\xBB\\xBF"},  // byte order mark
      {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(EscapeForPeople(one.text), one.expected);
  }
}

TEST(TextEscape, WritesBytesThatAreNoUtf8AsHexadecimal) {
  const std::vector<Case> cases = {
      {"\xFF", "\\xFF"},
      {"a\x80z", "a\\x80z"},                         // a lone continuation
      {"\xC3", "\\xC3"},                             // cut off
      {"\xE2\x82", "\\xE2\\x82"},                    // cut off after two of three
      {"\xC3(", "\\xC3("},                           // not continued
      {"\xC0\xAF", "\\xC0\\xAF"},                    // overlong
      {"\xE0\x80\xAF", "\\xE0\\x80\\xAF"},           // overlong
      {"\xF0\x80\x80\xAF", "\\xF0\\x80\\x80\\xAF"},  // overlong
      {"\xED\xA0\x80", "\\xED\\xA0\\x80"},           // a surrogate
      {"\xF4\x90\x80\x80", "\\xF4\\x90\\x80\\x80"},  // above the last code point
      {"\xF4\x8F\xBF\xBF", "\xF4\x8F\xBF\xBF"},      // the last code point
      {"\xC3\xA9\xFF\xC3\xA9", "\xC3\xA9\\xFF\xC3\xA9"},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(EscapeForPeople(one.text), one.expected);
    EXPECT_EQ(ToValidUtf8(one.text), one.expected);
  }
}

std::string Utf8(char32_t value) {
  const auto byte = [value](unsigned int lead, unsigned int shift, unsigned int mask) {
    return static_cast<char>(lead | (value >> shift & mask));
  };
  if (value < 0x80) return {byte(0, 0, 0x7F)};
  if (value < 0x800) return {byte(0xC0, 6, 0x1F), byte(0x80, 0, 0x3F)};
  if (value < 0x10000) return {byte(0xE0, 12, 0x0F), byte(0x80, 6, 0x3F), byte(0x80, 0, 0x3F)};
  return {byte(0xF0, 18, 0x07), byte(0x80, 12, 0x3F), byte(0x80, 6, 0x3F), byte(0x80, 0, 0x3F)};
}

std::string HexPairs(const std::string& before, const std::string& bytes) {
  std::string out;
  for (const char byte : bytes) {
    char pair[3];
    std::snprintf(pair, sizeof pair, "%02X", static_cast<unsigned char>(byte));
    out += before + pair;
  }
  return out;
}

struct Range {
  char32_t first;
  char32_t last;
};

bool IsIn(std::span<const Range> ranges, char32_t value) {
  return std::ranges::any_of(
      ranges, [value](const Range& one) { return one.first <= value && value <= one.last; });
}

// Calls the function with the code point before each range, its first, its last
// and the one beyond.
template <typename Function>
void ForEachEdge(std::span<const Range> ranges, const Function& function) {
  for (const Range& range : ranges) {
    for (const char32_t value : std::initializer_list<char32_t>{range.first - 1, range.first,
                                                                range.last, range.last + 1}) {
      if (value <= 0x10FFFF) function(value);
    }
  }
}

// Derived core property Default_Ignorable_Code_Point.
constexpr Range kIgnorable[] = {
    {0x00AD, 0x00AD},   {0x034F, 0x034F},   {0x061C, 0x061C}, {0x115F, 0x1160}, {0x17B4, 0x17B5},
    {0x180B, 0x180F},   {0x200B, 0x200F},   {0x202A, 0x202E}, {0x2060, 0x206F}, {0x3164, 0x3164},
    {0xFE00, 0xFE0F},   {0xFEFF, 0xFEFF},   {0xFFA0, 0xFFA0}, {0xFFF0, 0xFFF8}, {0x1BCA0, 0x1BCA3},
    {0x1D173, 0x1D17A}, {0xE0000, 0xE0FFF},
};
// Controls, line and paragraph separator, interlinear annotation.
constexpr Range kOtherUnshown[] = {
    {0x0000, 0x001F}, {0x007F, 0x009F}, {0x2028, 0x2029}, {0xFFF9, 0xFFFB}};

TEST(TextEscape, ShowsPeopleTheEdgesOfWhatIsNotSeenAsBytesAndWhatIsBeyondAsItIs) {
  const auto expect = [](char32_t value) {
    const std::string bytes = Utf8(value);
    const bool isEscaped = IsIn(kIgnorable, value) || IsIn(kOtherUnshown, value);
    const bool hasName = value == U'\n' || value == U'\t' || value == U'\r';
    if (hasName) return;
    EXPECT_EQ(EscapeForPeople(bytes), isEscaped ? HexPairs("\\x", bytes) : bytes)
        << std::hex << static_cast<unsigned int>(value);
  };
  ForEachEdge(kIgnorable, expect);
  ForEachEdge(kOtherUnshown, expect);
}

constexpr Range kEscapedInJson[] = {
    {0x007F, 0x009F}, {0x061C, 0x061C}, {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}};

TEST(TextEscape, WritesControlsAndDirectionsInJsonAsTheirNumbersAndWhatIsBeyondAsItIs) {
  ForEachEdge(kEscapedInJson, [](char32_t value) {
    char number[7];
    std::snprintf(number, sizeof number, "\\u%04X", static_cast<unsigned int>(value));
    EXPECT_EQ(EscapeJson("{\"" + Utf8(value) + "\":1}"),
              "{\"" + (IsIn(kEscapedInJson, value) ? number : Utf8(value)) + "\":1}");
  });
}

TEST(TextEscape, LeavesTheRestOfJsonAlone) {
  const std::string json =
      "{\n\t\"a\\\"\\u0001\\\\\": [1, \"\xC3\xA9 \xE2\x80\xA8 \xF0\x9F\x98\x80\"]\r\n}";
  EXPECT_EQ(EscapeJson(json), json);
  EXPECT_EQ(EscapeJson(""), "");
}

TEST(TextEscape, KeepsControlCharactersInValidUtf8) {
  EXPECT_EQ(ToValidUtf8("a\n\x1b\xC2\x9B"), "a\n\x1b\xC2\x9B");
}

TEST(TextEscape, CountsCodePointsNotBytes) {
  EXPECT_EQ(CountCodePoints(""), 0U);
  EXPECT_EQ(CountCodePoints("abc"), 3U);
  EXPECT_EQ(CountCodePoints("°C"), 2U);
  EXPECT_EQ(CountCodePoints("\xF0\x9F\x98\x80"), 1U);
}

}  // namespace
}  // namespace strake::tests
