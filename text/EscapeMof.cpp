#include "text/EscapeMof.h"

#include "text/Rewrite.h"

namespace strake::text {
namespace {

// A character and the letter that stands for it behind a backslash.
struct Letter {
  char32_t value;
  char letter;
};

constexpr Letter kLetters[] = {{U'\b', 'b'}, {U'\t', 't'}, {U'\n', 'n'},  {U'\f', 'f'},
                               {U'\r', 'r'}, {U'"', '"'},  {U'\'', '\''}, {U'\\', '\\'}};

constexpr bool IsPlain(char character) {
  return IsPrintableAscii(character) && character != '"' && character != '\'' && character != '\\';
}

void Append(std::string& out, char32_t value, std::string_view bytes) {
  const auto* const letter = std::ranges::find(kLetters, value, &Letter::value);
  if (letter != std::end(kLetters)) {
    out += '\\';
    out += letter->letter;
  } else if (value < U' ' || IsIn(kTurningOrControlling, value)) {
    out += "\\x";
    AppendFourDigits(out, value);
  } else {
    out += bytes;
  }
}

void AppendInvalid(std::string& out, unsigned char byte) {
  out += '\\';
  AppendEscapedByte(out, byte);
}

}  // namespace

std::string EscapeMof(std::string_view text) {
  return Rewrite(text, IsPlain, Append, AppendInvalid);
}

}  // namespace strake::text
