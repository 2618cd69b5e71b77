// What a property of a stored instance holds.
#pragma once

#include "cim/Catalogue.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace strake::cim {

// A date-time as its CIM text, yyyymmddhhmmss.mmmmmmsutc.
class DateTime {
 public:
  static constexpr std::size_t kLength = 25;

  // Throws std::length_error: the text has another length.
  explicit DateTime(std::string_view text);

  [[nodiscard]] std::string_view Text() const { return {fText.data(), fText.size()}; }
  friend bool operator==(const DateTime&, const DateTime&) = default;

 private:
  std::array<char, kLength> fText;
};

// In the order of CimType.
using Value = std::variant<std::string, std::int32_t, std::uint16_t, std::uint8_t, DateTime>;

inline CimType TypeOf(const Value& value) { return static_cast<CimType>(value.index()); }

// A text as it is, a number in decimal, a date-time's text.
std::string ToText(const Value& value);

}  // namespace strake::cim
