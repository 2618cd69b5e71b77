#include "cim/DateTimeText.h"

#include <cstddef>
#include <stdexcept>

namespace strake::cim {
namespace {

// yyyymmddhhmmss.mmmmmmsutc
constexpr std::size_t kLength = 25;
constexpr std::size_t kPoint = 14;
constexpr std::size_t kSign = 21;

bool HasForm(std::string_view text) {
  if (text.size() != kLength) {
    return false;
  }
  for (std::size_t i = 0; i < kLength; ++i) {
    const char character = text[i];
    if (i == kPoint && character != '.') {
      return false;
    }
    if (i == kSign && character != '+' && character != '-') {
      return false;
    }
    if (i != kPoint && i != kSign && (character < '0' || character > '9')) {
      return false;
    }
  }
  return true;
}

unsigned Digits(std::string_view text, std::size_t place, std::size_t count) {
  unsigned value = 0;
  for (const char digit : text.substr(place, count)) {
    value = value * 10 + static_cast<unsigned>(digit - '0');
  }
  return value;
}

unsigned short ShortDigits(std::string_view text, std::size_t place, std::size_t count) {
  return static_cast<unsigned short>(Digits(text, place, count));
}

}  // namespace

NVELKZEV20::TCIMDateTime ParseDateTime(std::string_view text) {
  if (!HasForm(text)) {
    throw std::out_of_range("not of this form");
  }
  const int offset = static_cast<int>(Digits(text, kSign + 1, 3));
  NVELKZEV20::TCIMDateTime dateTime;
  dateTime.Set(ShortDigits(text, 0, 4), ShortDigits(text, 4, 2), Digits(text, 6, 2),
               ShortDigits(text, 8, 2), ShortDigits(text, 10, 2), ShortDigits(text, 12, 2),
               Digits(text, kPoint + 1, 6),
               static_cast<short>(text[kSign] == '-' ? -offset : offset));
  return dateTime;
}

}  // namespace strake::cim
