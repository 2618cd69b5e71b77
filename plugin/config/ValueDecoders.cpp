#include "plugin/config/ValueDecoders.h"

#include <iterator>

namespace strake {

void DecodeMacHexadecimal(ByteView value, std::string& text) {
  static constexpr std::string_view kDigits = "0123456789ABCDEF";
  text.clear();
  for (std::size_t i = 0; i < 6; ++i) {
    const char digits[] = {kDigits[value[i] >> 4], kDigits[value[i] & 0x0F], ':'};
    text.append(std::begin(digits), std::end(digits));
  }
  text.pop_back();
}

void DecodeMtu(ByteView value, std::string& text) { SetText(text, value[0], " bytes"); }

void DecodeBaudRate(ByteView value, std::string& text) {
  SetText(text, (Signed(value[0]) + 1) * 2400);
}

void DecodeGuardTime(ByteView value, std::string& text) {
  SetText(text, Signed(value[0]), " msecs");
}

void DecodeLoginFlags(ByteView value, std::string& text) {
  constexpr int kReadOnly = 1;
  constexpr int kDialBack = 2;
  const int flags = value[0];
  text = (flags & kReadOnly) == 0 ? "Read/write permision. " : "Read only permission. ";
  // The isolated bit is 0 or 2, so "enabled" is never told: a login with
  // dial-back shows its permission alone.
  const int dialBack = flags & kDialBack;
  if (dialBack == 0) {
    text += "Dial back disabled";
  } else if (dialBack == 1) {
    text += "Dial back enabled";
  }
}

}  // namespace strake
