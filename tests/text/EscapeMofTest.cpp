// Strings of the Managed Object Format.
#include "text/EscapeMof.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(EscapeMof, WritesAStringOnOneLine) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"plain/*", "plain/*"},
      {"\b\t\n\f\r", "\\b\\t\\n\\f\\r"},
      {"\"'\\", "\\\"\\'\\\\"},
      {std::string("\0", 1), "\\x0000"},
      {"\x1b[31m", "\\x001B[31m"},
      {"\x01"
       "2",
       "\\x00012"},
      {"\x1f\x7f", "\\x001F\\x007F"},
      {"\xC2\x80\xC2\x9F\xC2\xA0", "\\x0080\\x009F\xC2\xA0"},
      {"\xE2\x80\xAE\xD8\x9C", "\\x202E\\x061C"},
      {"27.00 °C", "27.00 °C"},
      {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
      {"\xC3\xFF", "\\\\xC3\\\\xFF"},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(text::EscapeMof(text), expected);
  }
}

}  // namespace
}  // namespace strake::tests
