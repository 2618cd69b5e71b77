#include "text/TextEscape.h"

#include "text/HexBytes.h"
#include "text/Utf8.h"

#include <algorithm>
#include <span>

namespace strake::text {
namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// What a terminal does not show as itself: controls, ends of lines and
// paragraphs, and whatever Unicode calls ignorable by default.
constexpr Range kUnshown[] = {
    {0x0000, 0x001F},    // controls
    {0x007F, 0x009F},    // delete, and the controls of eight-bit terminals
    {0x00AD, 0x00AD},    // soft hyphen
    {0x034F, 0x034F},    // combining grapheme joiner
    {0x061C, 0x061C},    // Arabic letter mark
    {0x115F, 0x1160},    // Hangul fillers
    {0x17B4, 0x17B5},    // Khmer inherent vowels
    {0x180B, 0x180F},    // Mongolian variation selectors and vowel separator
    {0x200B, 0x200F},    // without width, and direction marks
    {0x2028, 0x202E},    // line and paragraph ends, direction overrides
    {0x2060, 0x206F},    // without width, and direction isolates
    {0x3164, 0x3164},    // Hangul filler
    {0xFE00, 0xFE0F},    // variation selectors
    {0xFEFF, 0xFEFF},    // byte order mark
    {0xFFA0, 0xFFA0},    // halfwidth Hangul filler
    {0xFFF0, 0xFFFB},    // unassigned, and interlinear annotation
    {0x1BCA0, 0x1BCA3},  // shorthand format controls
    {0x1D173, 0x1D17A},  // musical format controls
    {0xE0000, 0xE0FFF},  // tags and variation selectors
};

// What a reader of JSON cannot be expected to leave alone.
constexpr Range kEscapedInJson[] = {
    {0x007F, 0x009F},  // delete, and the controls of eight-bit terminals
    {0x061C, 0x061C},  // Arabic letter mark
    {0x200E, 0x200F},  // direction marks
    {0x202A, 0x202E},  // direction embeddings and overrides
    {0x2066, 0x2069},  // direction isolates
};

bool IsIn(std::span<const Range> ranges, char32_t value) {
  return std::ranges::any_of(
      ranges, [value](const Range& one) { return value >= one.first && value <= one.last; });
}

bool IsPlain(char character) { return character >= ' ' && character <= '~'; }

// Keeps printable ASCII and escapes bytes that are not valid UTF-8; of any
// other code point and its bytes the function appends what it likes.
template <typename Function>
std::string Rewrite(std::string_view text, const Function& append) {
  std::string out;
  out.reserve(text.size());
  while (true) {
    const auto plainEnd = std::ranges::find_if_not(text, IsPlain);
    const auto plain = static_cast<std::size_t>(plainEnd - text.begin());
    out += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) {
      return out;
    }
    const CodePoint codePoint = DecodeFront(text);
    const std::size_t taken = std::max<std::size_t>(codePoint.length, 1);
    if (codePoint.length == 0) {
      AppendEscapedByte(out, static_cast<unsigned char>(text.front()));
    } else {
      append(out, codePoint.value, text.substr(0, taken));
    }
    text.remove_prefix(taken);
  }
}

void AppendForPeople(std::string& out, char32_t value, std::string_view bytes) {
  switch (value) {
    case U'\n':
      out += "\\n";
      return;
    case U'\t':
      out += "\\t";
      return;
    case U'\r':
      out += "\\r";
      return;
    default:
      break;
  }
  if (!IsIn(kUnshown, value)) {
    out += bytes;
    return;
  }
  for (const char byte : bytes) {
    AppendEscapedByte(out, static_cast<unsigned char>(byte));
  }
}

void AppendForJson(std::string& out, char32_t value, std::string_view bytes) {
  if (!IsIn(kEscapedInJson, value)) {
    out += bytes;
    return;
  }
  out += "\\u";
  AppendHexPair(out, static_cast<unsigned char>(value >> 8U));
  AppendHexPair(out, static_cast<unsigned char>(value & 0xFFU));
}

}  // namespace

void AppendEscapedByte(std::string& out, unsigned char byte) {
  out += "\\x";
  AppendHexPair(out, byte);
}

std::string ToValidUtf8(std::string_view text) {
  return Rewrite(
      text, [](std::string& out, char32_t /*value*/, std::string_view bytes) { out += bytes; });
}

std::string EscapeForPeople(std::string_view text) { return Rewrite(text, AppendForPeople); }

std::string EscapeJson(std::string_view json) { return Rewrite(json, AppendForJson); }

}  // namespace strake::text
