#include "plugin/config/ValueDecoders.h"

namespace strake {
namespace {

void AppendHexadecimal(std::string& text, unsigned char byte) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  text.push_back(kDigits[byte >> 4]);
  text.push_back(kDigits[byte & 0x0F]);
}

}  // namespace

void DecodeMacHexadecimal(ByteView value, std::string& text) {
  AppendHexadecimal(text, value[0]);
  for (std::size_t i = 1; i < 6; ++i) {
    text.push_back(':');
    AppendHexadecimal(text, value[i]);
  }
}

void DecodeMtu(ByteView value, std::string& text) {
  AppendPart(text, value[0]);
  text += " bytes";
}

void DecodeBaudRate(ByteView value, std::string& text) {
  AppendPart(text, (Signed(value[0]) + 1) * 2400);
}

void DecodeGuardTime(ByteView value, std::string& text) {
  AppendPart(text, Signed(value[0]));
  text += " msecs";
}

void DecodeLoginFlags(ByteView value, std::string& text) {
  constexpr int kReadOnly = 1;
  constexpr int kDialBack = 2;
  const int flags = value[0];
  text += (flags & kReadOnly) == 0 ? "Read/write permision. " : "Read only permission. ";
  // The isolated bit is 0 or 2, so "enabled" is never told: hosts rely on a
  // login with dial-back showing its permission alone.
  const int dialBack = flags & kDialBack;
  if (dialBack == 0) {
    text += "Dial back disabled";
  } else if (dialBack == 1) {
    text += "Dial back enabled";
  }
}

}  // namespace strake
