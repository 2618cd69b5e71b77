#include "text/TextEscape.h"

#include "text/Rewrite.h"

namespace strake::text {
namespace {

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
  AppendEscapedBytes(out, bytes);
}

void AppendForJson(std::string& out, char32_t value, std::string_view bytes) {
  if (!IsIn(kTurningOrControlling, value)) {
    out += bytes;
    return;
  }
  out += "\\u";
  AppendFourDigits(out, value);
}

template <typename Append>
std::string RewriteBeyondAscii(std::string_view text, const Append& append) {
  return Rewrite(text, IsPrintableAscii, append, AppendEscapedByte);
}

}  // namespace

void AppendEscapedByte(std::string& out, unsigned char byte) {
  out += "\\x";
  AppendHexPair(out, byte);
}

std::string ToValidUtf8(std::string_view text) {
  return RewriteBeyondAscii(
      text, [](std::string& out, char32_t /*value*/, std::string_view bytes) { out += bytes; });
}

std::string EscapeForPeople(std::string_view text) {
  return RewriteBeyondAscii(text, AppendForPeople);
}

std::string EscapeJson(std::string_view json) { return RewriteBeyondAscii(json, AppendForJson); }

}  // namespace strake::text
