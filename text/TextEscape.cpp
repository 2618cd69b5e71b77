#include "text/TextEscape.h"

#include <algorithm>
#include <array>

namespace strake::text {
namespace {

struct CodePoint {
  char32_t value = 0;
  std::size_t length = 0;  // in bytes; 0: the text does not begin with valid UTF-8
};

struct Form {
  unsigned char leadMask;
  unsigned char lead;
  std::size_t length;
  char32_t lowest;  // below it the form is overlong
};

constexpr std::array<Form, 4> kForms{{
    {0x80, 0x00, 1, 0x0},
    {0xE0, 0xC0, 2, 0x80},
    {0xF0, 0xE0, 3, 0x800},
    {0xF8, 0xF0, 4, 0x10000},
}};

constexpr char32_t kHighest = 0x10FFFF;
constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kLastSurrogate = 0xDFFF;

CodePoint DecodeForm(std::string_view text, const Form& form) {
  if (text.size() < form.length) {
    return {};
  }
  char32_t value = static_cast<unsigned char>(text.front()) & ~form.leadMask & 0xFFU;
  for (const char next : text.substr(1, form.length - 1)) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0U) != 0x80U) {
      return {};
    }
    value = (value << 6U) | (byte & 0x3FU);
  }
  const bool isSurrogate = value >= kFirstSurrogate && value <= kLastSurrogate;
  if (value < form.lowest || value > kHighest || isSurrogate) {
    return {};
  }
  return {value, form.length};
}

// The text is not empty.
CodePoint DecodeFront(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  for (const Form& form : kForms) {
    if ((lead & form.leadMask) == form.lead) {
      return DecodeForm(text, form);
    }
  }
  return {};
}

struct Range {
  char32_t first;
  char32_t last;
};

// Characters that a terminal does not show as themselves.
constexpr std::array<Range, 8> kUnshown{{
    {0x0000, 0x001F},  // controls
    {0x007F, 0x009F},  // delete, and the controls of eight-bit terminals
    {0x061C, 0x061C},  // Arabic letter mark
    {0x200B, 0x200F},  // without width, and direction marks
    {0x2028, 0x202E},  // line and paragraph ends, direction overrides
    {0x2060, 0x206F},  // without width, and direction isolates
    {0xFEFF, 0xFEFF},  // byte order mark
    {0xFFF9, 0xFFFB},  // interlinear annotation
}};

bool IsShown(char32_t value) {
  return std::none_of(kUnshown.begin(), kUnshown.end(), [value](const Range& range) {
    return value >= range.first && value <= range.last;
  });
}

void AppendHex(std::string& out, std::string_view bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (const char character : bytes) {
    const auto byte = static_cast<unsigned char>(character);
    out += "\\x";
    out += kDigits[byte >> 4U];
    out += kDigits[byte & 0xFU];
  }
}

void AppendForPeople(std::string& out, const CodePoint& codePoint, std::string_view bytes) {
  switch (codePoint.value) {
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
  if (IsShown(codePoint.value)) {
    out += bytes;
  } else {
    AppendHex(out, bytes);
  }
}

}  // namespace

std::string ToValidUtf8(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const CodePoint codePoint = DecodeFront(text);
    const std::size_t taken = std::max<std::size_t>(codePoint.length, 1);
    if (codePoint.length == 0) {
      AppendHex(out, text.substr(0, taken));
    } else {
      out += text.substr(0, taken);
    }
    text.remove_prefix(taken);
  }
  return out;
}

std::string EscapeForPeople(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const CodePoint codePoint = DecodeFront(text);
    const std::size_t taken = std::max<std::size_t>(codePoint.length, 1);
    if (codePoint.length == 0) {
      AppendHex(out, text.substr(0, taken));
    } else {
      AppendForPeople(out, codePoint, text.substr(0, taken));
    }
    text.remove_prefix(taken);
  }
  return out;
}

std::size_t CountCodePoints(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char character) {
    return (static_cast<unsigned char>(character) & 0xC0U) != 0x80U;
  }));
}

}  // namespace strake::text
