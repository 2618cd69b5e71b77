#include "text/Quote.h"

#include <cstddef>

namespace strake::text {
namespace {

constexpr std::size_t kLongest = 160;
constexpr std::string_view kGap = "...";

void AppendEscaped(std::string& line, unsigned char byte) {
  constexpr std::string_view kHex = "0123456789abcdef";
  line += "\\x";
  line += kHex[byte >> 4U];
  line += kHex[byte & 0xFU];
}

bool IsControl(unsigned char byte) { return byte < 0x20 || byte == 0x7F; }

std::string EscapeAscii(std::string_view text) {
  std::string line;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (IsControl(byte) || byte >= 0x80) {
      AppendEscaped(line, byte);
    } else {
      line += character;
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

std::string PrintableName(std::string_view name) {
  std::string line;
  for (const char character : name) {
    const auto byte = static_cast<unsigned char>(character);
    if (IsControl(byte)) {
      AppendEscaped(line, byte);
    } else {
      line += character;
    }
  }
  return line;
}

}  // namespace strake::text
