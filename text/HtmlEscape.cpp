#include "text/HtmlEscape.h"

#include "text/TextEscape.h"

#include <algorithm>

namespace strake::text {
namespace {

// Empty: the character stands for itself.
constexpr std::string_view ReferenceOf(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\'':
      return "&#39;";
    default:
      return {};
  }
}

void AppendReferences(std::string& out, std::string_view text) {
  std::size_t begin = 0;
  for (std::size_t end = 0; end < text.size(); ++end) {
    const std::string_view reference = ReferenceOf(text[end]);
    if (!reference.empty()) {
      out += text.substr(begin, end - begin);
      out += reference;
      begin = end + 1;
    }
  }
  out += text.substr(begin);
}

}  // namespace

void AppendHtml(std::string& out, std::string_view text) {
  const bool isPrintable =
      std::ranges::all_of(text, [](char one) { return one >= ' ' && one <= '~'; });
  AppendReferences(out, isPrintable ? text : std::string_view(EscapeForPeople(text)));
}

}  // namespace strake::text
