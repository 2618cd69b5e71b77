// How texts are escaped: what may stay is copied, the rest is written otherwise,
// one code point at a time.
#pragma once

#include "text/HexBytes.h"
#include "text/TextEscape.h"
#include "text/Utf8.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace strake::text {

struct Range {
  char32_t first;
  char32_t last;
};

// Characters that turn the writing direction, and delete with the controls of
// eight-bit terminals.
inline constexpr Range kTurningOrControlling[] = {
    {0x007F, 0x009F},  // delete, and the controls of eight-bit terminals
    {0x061C, 0x061C},  // Arabic letter mark
    {0x200E, 0x200F},  // direction marks
    {0x202A, 0x202E},  // direction embeddings and overrides
    {0x2066, 0x2069},  // direction isolates
};

inline bool IsIn(std::span<const Range> ranges, char32_t value) {
  return std::ranges::any_of(
      ranges, [value](const Range& one) { return value >= one.first && value <= one.last; });
}

constexpr bool IsPrintableAscii(char character) { return character >= ' ' && character <= '~'; }

inline void AppendEscapedBytes(std::string& out, std::string_view bytes) {
  for (const char byte : bytes) {
    AppendEscapedByte(out, static_cast<unsigned char>(byte));
  }
}

// The four digits of a code point up to U+FFFF.
inline void AppendFourDigits(std::string& out, char32_t value) {
  AppendHexPair(out, static_cast<unsigned char>(value >> 8U));
  AppendHexPair(out, static_cast<unsigned char>(value & 0xFFU));
}

// Keeps the ASCII characters that the first function calls plain; of any other
// code point and its bytes the second one appends what it likes, and the third
// one does so of a byte that is not valid UTF-8.
template <typename IsPlain, typename Append, typename AppendInvalid>
std::string Rewrite(std::string_view text, const IsPlain& isPlain, const Append& append,
                    const AppendInvalid& appendInvalid) {
  std::string out;
  out.reserve(text.size());
  while (true) {
    const auto plainEnd = std::ranges::find_if_not(text, isPlain);
    const auto plain = static_cast<std::size_t>(plainEnd - text.begin());
    out += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) {
      return out;
    }
    const CodePoint codePoint = DecodeFront(text);
    const std::size_t taken = std::max<std::size_t>(codePoint.length, 1);
    if (codePoint.length == 0) {
      appendInvalid(out, static_cast<unsigned char>(text.front()));
    } else {
      append(out, codePoint.value, text.substr(0, taken));
    }
    text.remove_prefix(taken);
  }
}

}  // namespace strake::text
