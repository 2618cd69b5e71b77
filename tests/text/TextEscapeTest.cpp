// Text that is safe to write.
#include "text/TextEscape.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

using text::CountCodePoints;
using text::EscapeForPeople;
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
