#include "text/HexBytes.h"

namespace strake::text {
namespace {

bool IsBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

std::optional<unsigned> DigitOf(char character) {
  if (character >= '0' && character <= '9') {
    return static_cast<unsigned>(character - '0');
  }
  if (character >= 'A' && character <= 'F') {
    return static_cast<unsigned>(character - 'A') + 10U;
  }
  if (character >= 'a' && character <= 'f') {
    return static_cast<unsigned>(character - 'a') + 10U;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ParseHexBytes(std::string_view text) {
  std::string bytes;
  while (!text.empty()) {
    if (IsBlank(text.front())) {
      text.remove_prefix(1);
      continue;
    }
    if (text.size() < 2) {
      return std::nullopt;
    }
    const std::optional<unsigned> high = DigitOf(text[0]);
    const std::optional<unsigned> low = DigitOf(text[1]);
    if (!high || !low) {
      return std::nullopt;
    }
    bytes += static_cast<char>(*high * 16U + *low);
    text.remove_prefix(2);
  }
  return bytes;
}

void AppendHexPair(std::string& out, unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  out += kDigits[byte >> 4U];
  out += kDigits[byte & 0xFU];
}

}  // namespace strake::text
