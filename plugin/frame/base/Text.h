// Texts that are put together from parts: each is appended to one string.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace strake {

// A type is a part of a text when it has an AppendPart. Numbers are decimal in
// any locale, bytes too; flags are "0" or "1".
inline void AppendPart(std::string& text, std::string_view part) { text.append(part); }

template <std::integral Number>
void AppendNumber(std::string& text, Number number, int base) {
  // Enough for any base from 8 on: a digit for three bits, and a sign.
  std::array<char, std::numeric_limits<Number>::digits / 3 + 2> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), number, base).ptr;
  text.append(digits.begin(), end);
}

template <std::integral Number>
void AppendPart(std::string& text, Number number) {
  AppendNumber(text, +number, 10);
}

// Bytes are most of the numbers in a trail.
inline void AppendPart(std::string& text, unsigned char byte) {
  const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
  if (byte >= 100) {
    text.push_back(digit(byte / 100));
  }
  if (byte >= 10) {
    text.push_back(digit(byte / 10));
  }
  text.push_back(digit(byte));
}

// An address, in the standard stream's pointer format.
struct AddressText {
  const void* address;
};

inline void AppendPart(std::string& text, const AddressText& part) {
  text.append("0x");
  AppendNumber(text, reinterpret_cast<std::uintptr_t>(part.address), 16);
}

// Bytes in decimal, each with a character behind it.
struct ByteListText {
  std::span<const unsigned char> bytes;
  char behind;
};

inline void AppendPart(std::string& text, const ByteListText& part) {
  for (const unsigned char byte : part.bytes) {
    AppendPart(text, byte);
    text.push_back(part.behind);
  }
}

// Makes `text` the parts, none of which may refer to it. It keeps its memory.
template <typename... Parts>
void SetText(std::string& text, const Parts&... parts) {
  text.clear();
  (AppendPart(text, parts), ...);
}

template <typename... Parts>
std::string MakeText(const Parts&... parts) {
  std::string text;
  (AppendPart(text, parts), ...);
  return text;
}

}  // namespace strake
