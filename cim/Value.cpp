#include "cim/Value.h"

#include <algorithm>
#include <stdexcept>

namespace strake::cim {
namespace {

template <CimType Type, typename Content>
constexpr bool kHolds =
    std::is_same_v<std::variant_alternative_t<static_cast<std::size_t>(Type), Value>, Content>;

static_assert(std::variant_size_v<Value> == 5);
static_assert(kHolds<CimType::String, std::string> && kHolds<CimType::Sint32, std::int32_t> &&
              kHolds<CimType::Uint16, std::uint16_t> && kHolds<CimType::Uint8, std::uint8_t> &&
              kHolds<CimType::DateTime, DateTime>);

}  // namespace

DateTime::DateTime(std::string_view text) : fText{} {
  if (text.size() != kLength) {
    throw std::length_error("a date-time has 25 characters, not " + std::to_string(text.size()));
  }
  std::ranges::copy(text, fText.begin());
}

std::string ToText(const Value& value) {
  struct Texts {
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const DateTime& dateTime) const { return std::string(dateTime.Text()); }
    std::string operator()(int number) const { return std::to_string(number); }
  };
  return std::visit(Texts{}, value);
}

}  // namespace strake::cim
