// Texts that are put together from parts. The room that the parts take at most
// is known before the first is written, so a text is sized once, however many
// parts it has: log lines are most of what a query makes.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace strake {

// A type is a part of a text when it has these two: the most characters that it
// takes, and the writing of them to the front of a room, which gives the room
// that is left. Numbers are decimal in any locale, flags "0" or "1".
//
// Characters are copied with copy(), not std::copy, which moves: compilers make
// a call of a move that they would write out as a copy.
using TextRoom = std::span<char>;

inline std::size_t MostCharacters(std::string_view part) { return part.size(); }
inline TextRoom WritePart(TextRoom room, std::string_view part) {
  part.copy(room.data(), part.size());
  return room.subspan(part.size());
}

// A literal, whose length is known.
template <std::size_t Size>
constexpr std::size_t MostCharacters(const char (&/*literal*/)[Size]) {
  return Size - 1;
}
template <std::size_t Size>
TextRoom WritePart(TextRoom room, const char (&literal)[Size]) {
  return WritePart(room, std::string_view(literal, Size - 1));
}

// The decimal text of every byte: bytes are most of the numbers.
struct ByteText {
  std::array<char, 3> digits;
  unsigned char length;
};

consteval std::array<ByteText, 256> MakeByteTexts() {
  std::array<ByteText, 256> texts{};
  for (unsigned int byte = 0; byte < texts.size(); ++byte) {
    const auto digit = [](unsigned int value) { return static_cast<char>('0' + value % 10); };
    if (byte < 10) {
      texts.at(byte) = {{digit(byte)}, 1};
    } else if (byte < 100) {
      texts.at(byte) = {{digit(byte / 10), digit(byte)}, 2};
    } else {
      texts.at(byte) = {{digit(byte / 100), digit(byte / 10), digit(byte)}, 3};
    }
  }
  return texts;
}

inline constexpr std::array<ByteText, 256> kByteTexts = MakeByteTexts();

template <std::same_as<unsigned char> Byte>
constexpr std::size_t MostCharacters(Byte /*number*/) {
  return 3;
}
template <std::same_as<unsigned char> Byte>
TextRoom WritePart(TextRoom room, Byte number) {
  const ByteText& text = std::span(kByteTexts)[number];
  std::string_view(text.digits.data(), text.digits.size()).copy(room.data(), 3);
  return room.subspan(text.length);
}

template <typename Number>
concept WideNumber =
    std::integral<Number> && !std::same_as<Number, char> && !std::same_as<Number, unsigned char>;

// `base` is 10 or 16.
template <std::integral Number>
TextRoom WriteNumber(TextRoom room, Number number, int base) {
  const auto end = std::to_chars(room.data(), std::to_address(room.end()), number, base).ptr;
  return room.subspan(static_cast<std::size_t>(end - room.data()));
}

template <WideNumber Number>
constexpr std::size_t MostCharacters(Number /*number*/) {
  return std::numeric_limits<Number>::digits10 + 2;  // the cut-off digit and a sign
}
template <WideNumber Number>
TextRoom WritePart(TextRoom room, Number number) {
  return WriteNumber(room, +number, 10);
}

// An address, in the standard stream's pointer format.
struct AddressText {
  const void* address;
};

constexpr std::size_t MostCharacters(const AddressText& part) {
  return 2 + 2 * sizeof(part.address);
}
inline TextRoom WritePart(TextRoom room, const AddressText& part) {
  return WriteNumber(WritePart(room, "0x"), reinterpret_cast<std::uintptr_t>(part.address), 16);
}

// Bytes in decimal, each with a character behind it.
struct ByteListText {
  std::span<const unsigned char> bytes;
  char behind;
};

inline std::size_t MostCharacters(const ByteListText& part) { return 4 * part.bytes.size(); }
inline TextRoom WritePart(TextRoom room, const ByteListText& part) {
  for (const unsigned char byte : part.bytes) {
    room = WritePart(room, byte);
    room.front() = part.behind;
    room = room.subspan(1);
  }
  return room;
}

// Makes a text that is shorter `size` characters long. Out of line, for it is
// written into every line of the log otherwise.
void Lengthen(std::string& text, std::size_t size);

// A text that is a part is looked at once: its length must not change between
// its measuring and its writing.
template <typename Part>
decltype(auto) PartOf(const Part& part) {
  if constexpr (std::same_as<Part, std::string> || std::same_as<Part, const char*>) {
    return std::string_view(part);
  } else {
    return (part);
  }
}

template <typename... Parts>
void WriteText(std::string& text, const Parts&... parts) {
  const std::size_t most = (MostCharacters(parts) + ...);
  if (text.size() < most) {
    Lengthen(text, most);
  }
  TextRoom room(text);
  ((room = WritePart(room, parts)), ...);
  text.erase(text.size() - room.size());
}

// Makes `text` the parts, none of which may refer to it. It keeps its memory.
template <typename... Parts>
void SetText(std::string& text, const Parts&... parts) {
  WriteText(text, PartOf(parts)...);
}

template <typename... Parts>
std::string MakeText(const Parts&... parts) {
  std::string text;
  SetText(text, parts...);
  return text;
}

}  // namespace strake
