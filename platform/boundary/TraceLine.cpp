#include "platform/boundary/TraceLine.h"

#include "text/HexBytes.h"

namespace strake::platform {
namespace {

// Writes the code point of the byte's value. What a terminal would obey is
// escaped, beyond what JSON asks for.
void AppendByte(std::string& line, unsigned char byte) {
  if (byte == '"' || byte == '\\') {
    line += '\\';
    line += static_cast<char>(byte);
  } else if (byte < 0x20 || (byte >= 0x7F && byte < 0xA0)) {
    line += "\\u00";
    text::AppendHexPair(line, byte);
  } else if (byte < 0x7F) {
    line += static_cast<char>(byte);
  } else {
    line += static_cast<char>(0xC0U | (byte >> 6U));
    line += static_cast<char>(0x80U | (byte & 0x3FU));
  }
}

}  // namespace

TraceLine::TraceLine(std::string_view event) : fLine("{\"event\":\"") {
  fLine += event;
  fLine += '"';
}

TraceLine& TraceLine::Text(std::string_view key, std::string_view bytes) {
  Key(key);
  Quote(bytes);
  return *this;
}

TraceLine& TraceLine::Texts(std::string_view key, const std::vector<std::string>& texts) {
  Key(key);
  char separator = '[';
  for (const std::string& text : texts) {
    fLine += separator;
    Quote(text);
    separator = ',';
  }
  fLine += texts.empty() ? "[]" : "]";
  return *this;
}

TraceLine& TraceLine::Number(std::string_view key, long number) {
  Key(key);
  fLine += std::to_string(number);
  return *this;
}

TraceLine& TraceLine::Flag(std::string_view key, bool flag) {
  Key(key);
  fLine += flag ? "true" : "false";
  return *this;
}

TraceLine& TraceLine::Hex(std::string_view key, std::span<const unsigned char> bytes) {
  Key(key);
  fLine += '"';
  for (const unsigned char byte : bytes) {
    text::AppendHexPair(fLine, byte);
  }
  fLine += '"';
  return *this;
}

void TraceLine::WriteTo(std::ostream& out) {
  fLine += "}\n";
  out.write(fLine.data(), static_cast<std::streamsize>(fLine.size()));
}

void TraceLine::Key(std::string_view key) {
  fLine += ",\"";
  fLine += key;
  fLine += "\":";
}

void TraceLine::Quote(std::string_view bytes) {
  fLine += '"';
  for (const char byte : bytes) {
    AppendByte(fLine, static_cast<unsigned char>(byte));
  }
  fLine += '"';
}

}  // namespace strake::platform
