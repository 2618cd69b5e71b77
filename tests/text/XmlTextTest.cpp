// Texts that an XML document can hold.
#include "text/XmlText.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

TEST(XmlText, WritesWhatXmlHasNoPlaceForAsItsBytes) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"<&>\"'", "<&>\"'"},
      {"\t\n", "\t\n"},
      {"a\rb\r\n", "a\\x0Db\\x0D\n"},
      {std::string("\0", 1), "\\x00"},
      {"\x1b\x1f ", "\\x1B\\x1F "},
      {"\x7f\xC2\x85\xE2\x80\xA8", "\x7f\xC2\x85\xE2\x80\xA8"},
      {"\xEF\xBF\xBD\xEF\xBF\xBE\xEF\xBF\xBF", "\xEF\xBF\xBD\\xEF\\xBF\\xBE\\xEF\\xBF\\xBF"},
      {"\xF0\x9F\xBF\xBF", "\xF0\x9F\xBF\xBF"},
      {"\xED\xA0\x80", "\\xED\\xA0\\x80"},
      {"\xC3", "\\xC3"},
  };
  for (const auto& [text, expected] : cases) {
    EXPECT_EQ(text::XmlText(text), expected);
  }
}

}  // namespace
}  // namespace strake::tests
