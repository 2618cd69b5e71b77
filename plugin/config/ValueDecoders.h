// From value bytes to the text that a property holds. A value that is shorter
// than its decoder needs reads as zeros where it ends.
#pragma once

#include "plugin/frame/base/Text.h"
#include "plugin/spaccess/ByteView.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace strake {

// Makes `text` the text of `value`; it keeps its memory.
using ValueDecoder = void (*)(ByteView value, std::string& text);

struct CodeText {
  unsigned char code;
  std::string_view text;
};

// Byte 0 is a code of the table; any other reads "None".
template <const auto& Codes>
void DecodeCode(ByteView value, std::string& text) {
  for (const CodeText& entry : Codes) {
    if (entry.code == value[0]) {
      text = entry.text;
      return;
    }
  }
  text = "None";
}

struct FlagTexts {
  std::string_view zero;
  std::string_view other;
};

inline constexpr FlagTexts kEnabledWhenSet = {.zero = "Disabled", .other = "Enabled"};
// SNMP traps are told by what is off.
inline constexpr FlagTexts kEnabledWhenClear = {.zero = "Enabled", .other = "Disabled"};

template <const FlagTexts& Texts = kEnabledWhenSet>
void DecodeFlag(ByteView value, std::string& text) {
  text = value[0] == 0 ? Texts.zero : Texts.other;
}

inline void DecodeText(ByteView value, std::string& text) { text = value.Text(); }

// `Count` bytes in decimal, joined by points.
template <std::size_t Count>
void DecodePointedDecimal(ByteView value, std::string& text) {
  std::array<unsigned char, Count> bytes{};
  std::size_t offset = 0;
  for (unsigned char& byte : bytes) {
    byte = value[offset++];
  }
  SetText(text, ByteListText{.bytes = bytes, .behind = '.'});
  text.pop_back();
}

// An IP address: 192.0.2.1.
inline constexpr ValueDecoder DecodeAddress = DecodePointedDecimal<4>;
// A locally administered MAC address: 0.26.43.60.77.94.
inline constexpr ValueDecoder DecodeMacDecimal = DecodePointedDecimal<6>;
// A burned-in MAC address: 00:1A:2B:3C:4D:5E.
void DecodeMacHexadecimal(ByteView value, std::string& text);

// One unsigned byte and " bytes": the MTU of an SP that tells no more of it.
void DecodeMtu(ByteView value, std::string& text);
// The baud rate as a signed count of 2400 steps, from 2400 on.
void DecodeBaudRate(ByteView value, std::string& text);
// A signed byte and " msecs".
void DecodeGuardTime(ByteView value, std::string& text);
// What a login may do and whether it is called back.
void DecodeLoginFlags(ByteView value, std::string& text);

}  // namespace strake
