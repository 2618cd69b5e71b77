#include "text/DotNotation.h"

#include <charconv>
#include <system_error>

namespace strake::text {

std::string DotNotation(std::span<const unsigned char> identifier) {
  std::string text;
  for (const unsigned char byte : identifier) {
    if (!text.empty()) {
      text += '.';
    }
    text += std::to_string(byte);
  }
  return text;
}

std::string DotNotationOf(std::string_view identifier) {
  return DotNotation(
      std::span(reinterpret_cast<const unsigned char*>(identifier.data()), identifier.size()));
}

std::optional<unsigned char> ParseDecimalByte(std::string_view text) {
  if (text.size() > 1 && text.front() == '0') {
    return std::nullopt;
  }
  unsigned char value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || stop != end) {
    return std::nullopt;
  }
  return value;
}

std::optional<std::string> ParseDotNotation(std::string_view text) {
  std::string identifier;
  while (true) {
    const std::size_t point = text.find('.');
    const std::optional<unsigned char> byte = ParseDecimalByte(text.substr(0, point));
    if (!byte) {
      return std::nullopt;
    }
    identifier += static_cast<char>(*byte);
    if (point == std::string_view::npos) {
      return identifier;
    }
    text.remove_prefix(point + 1);
  }
}

}  // namespace strake::text
