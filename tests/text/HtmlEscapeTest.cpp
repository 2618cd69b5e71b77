// Text within a page.
#include "text/HtmlEscape.h"

#include <gtest/gtest.h>

namespace strake::tests {
namespace {

std::string Html(std::string_view text) {
  std::string out = ">";
  text::AppendHtml(out, text);
  return out.substr(1);
}

TEST(HtmlEscape, LeavesNoCharacterThatMarkupIsMadeOf) {
  struct Case {
    std::string text;
    std::string expected;
  };
  const std::vector<Case> cases = {
      {"", ""},
      {"plain text", "plain text"},
      {"a&b", "a&amp;b"},
      {"&lt;", "&amp;lt;"},
      {"<script>alert(\"1\")</script>", "&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt;"},
      {"'x' onclick='y'", "&#39;x&#39; onclick=&#39;y&#39;"},
      {"<<>>", "&lt;&lt;&gt;&gt;"},
      {"27.00 °C <", "27.00 °C &lt;"},
      {"one\ntwo\t<", "one\\ntwo\\t&lt;"},
      {std::string("\0<", 2), "\\x00&lt;"},
      {"\xFF<\xC3", "\\xFF&lt;\\xC3"},              // no UTF-8
      {"\xE2\x80\xAE>", "\\xE2\\x80\\xAE&gt;"},     // right-to-left override
      {"\xEF\xBB\xBF&", "\\xEF\\xBB\\xBF&amp;"},    // byte order mark
      {"\xC0\xBCscript>", "\\xC0\\xBCscript&gt;"},  // overlong "<"
      {"\xEF\xBC\x9C", "\xEF\xBC\x9C"},             // fullwidth "<" is none
  };
  for (const Case& one : cases) {
    EXPECT_EQ(Html(one.text), one.expected);
  }
}

TEST(HtmlEscape, AppendsToWhatIsThere) {
  std::string out = "<td>";
  text::AppendHtml(out, "<");
  text::AppendHtml(out, "");
  text::AppendHtml(out, "\xFF");
  EXPECT_EQ(out, "<td>&lt;\\xFF");
}

}  // namespace
}  // namespace strake::tests
