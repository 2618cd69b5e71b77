// Log lines: a message is given as its parts and put together only when
// somebody will read it.
#pragma once

#include <charconv>
#include <concepts>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace strake {

// Appends one part of a text. Numbers are decimal in any locale, flags "0" or
// "1". Other types join in with an AppendPart of their own.
inline void AppendPart(std::string& text, std::string_view part) { text.append(part); }

// A literal, whose length is known.
template <std::size_t Size>
void AppendPart(std::string& text, const char (&literal)[Size]) {
  text.append(literal, Size - 1);
}

// Bytes are most of the numbers.
void AppendPart(std::string& text, unsigned char number);

template <std::integral Number>
requires(!std::same_as<Number, char> &&
         !std::same_as<Number, unsigned char>) void AppendPart(std::string& text, Number number) {
  char digits[std::numeric_limits<Number>::digits10 + 3];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), +number).ptr;
  text.append(std::begin(digits), end);
}

// An address, in the standard stream's pointer format.
struct AddressText {
  const void* address;
};

inline void AppendPart(std::string& text, const AddressText& part) {
  char digits[2 * sizeof(part.address)];
  const auto end = std::to_chars(std::begin(digits), std::end(digits),
                                 reinterpret_cast<std::uintptr_t>(part.address), 16)
                       .ptr;
  text.append("0x").append(std::begin(digits), end);
}

template <typename... Parts>
std::string MakeText(const Parts&... parts) {
  std::string text;
  (AppendPart(text, parts), ...);
  return text;
}

// Hands a message to the host's core logger; an empty one is dropped.
void WriteLogLine(int level, const std::string& message);

// The line that is being put together. It keeps its memory from line to line,
// for lines are most of what a query makes; there are no threads, and putting a
// line together logs nothing.
std::string& LineInTheMaking();

// The logging core of every owner: nothing is built or written while the gate
// (what registration returned) is null.
template <typename... Parts>
void LogLine(const void* gate, int level, const Parts&... parts) {
  if (gate != nullptr) {
    std::string& line = LineInTheMaking();
    line.clear();
    (AppendPart(line, parts), ...);
    WriteLogLine(level, line);
  }
}

}  // namespace strake
