#include "text/XmlText.h"

#include "text/Rewrite.h"

namespace strake::text {
namespace {

bool XmlHolds(char32_t value) {
  return value == U'\t' || value == U'\n' ||
         (value >= U' ' && value != char32_t{0xFFFE} && value != char32_t{0xFFFF});
}

void Append(std::string& out, char32_t value, std::string_view bytes) {
  if (XmlHolds(value)) {
    out += bytes;
  } else {
    AppendEscapedBytes(out, bytes);
  }
}

}  // namespace

std::string XmlText(std::string_view text) {
  return Rewrite(text, IsPrintableAscii, Append, AppendEscapedByte);
}

}  // namespace strake::text
