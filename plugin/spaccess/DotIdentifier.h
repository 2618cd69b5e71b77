// Dot commands: what names one, and how people write it.
#pragma once

#include "plugin/frame/base/Text.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <span>

namespace strake {

// The class of every command, dot and Kestle.
inline constexpr unsigned char kCommandClass = 2;

// A dot command's identifier, of two to six bytes.
struct DotIdentifier {
  std::uint32_t length = 0;
  std::array<unsigned char, 12> bytes = {};  // zeros past the length

  DotIdentifier() = default;
  template <std::same_as<int>... Numbers>
  constexpr DotIdentifier(int first, int second, Numbers... more)
      : length(2 + sizeof...(more)),
        bytes{static_cast<unsigned char>(first), static_cast<unsigned char>(second),
              static_cast<unsigned char>(more)...} {}

  [[nodiscard]] constexpr std::span<const unsigned char> Bytes() const {
    return std::span(bytes).first(length);
  }
  [[nodiscard]] constexpr std::span<unsigned char> Bytes() {
    return std::span(bytes).first(length);
  }

  // Numbered identifiers have the instance in their fourth byte.
  static constexpr std::size_t kInstancePlace = 3;
  void Address(unsigned char instance) { bytes[kInstancePlace] = instance; }
};

// What any Orlo SP answers.
inline constexpr DotIdentifier kPresenceTest = {1, 1};

// An identifier as a part of a log line: each byte in decimal followed by "."
// (4, 4, 1 reads 4.4.1. with the trailing point).
inline ByteListText DotCommandText(std::span<const unsigned char> identifier) {
  return {.bytes = identifier, .behind = '.'};
}

}  // namespace strake
