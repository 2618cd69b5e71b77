#include "text/Quote.h"

#include "text/TextEscape.h"

#include <cstddef>

namespace strake::text {
namespace {

constexpr std::size_t kLongest = 160;
constexpr std::string_view kGap = "...";

std::string EscapeAscii(std::string_view text) {
  std::string line;
  for (const char character : text) {
    if (character >= ' ' && character <= '~') {
      line += character;
    } else {
      AppendEscapedByte(line, static_cast<unsigned char>(character));
    }
  }
  return line;
}

}  // namespace

std::string Printable(std::string_view text) {
  if (text.size() <= kLongest) {
    return EscapeAscii(text);
  }
  constexpr std::size_t kHalf = (kLongest - kGap.size()) / 2;
  return EscapeAscii(text.substr(0, kHalf)) + std::string(kGap) +
         EscapeAscii(text.substr(text.size() - kHalf));
}

std::string Quoted(std::string_view text) { return '"' + Printable(text) + '"'; }

}  // namespace strake::text
