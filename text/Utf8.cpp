#include "text/Utf8.h"

#include <algorithm>
#include <array>

namespace strake::text {
namespace {

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

}  // namespace

CodePoint DecodeFront(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  for (const Form& form : kForms) {
    if ((lead & form.leadMask) == form.lead) {
      return DecodeForm(text, form);
    }
  }
  return {};
}

std::size_t CountCodePoints(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char character) {
    return (static_cast<unsigned char>(character) & 0xC0U) != 0x80U;
  }));
}

}  // namespace strake::text
