#include "app/Duration.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <memory>

namespace strake::app {
namespace {

using std::chrono::milliseconds;

struct Unit {
  std::string_view name;
  milliseconds length;
};

constexpr std::array<Unit, 4> kUnits{{
    {"ms", std::chrono::milliseconds(1)},
    {"s", std::chrono::seconds(1)},
    {"m", std::chrono::minutes(1)},
    {"h", std::chrono::hours(1)},
}};

}  // namespace

std::optional<milliseconds> ParseDuration(std::string_view text) {
  std::uint32_t number = 0;
  const char* const end = std::to_address(text.end());
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const std::string_view name(stop, static_cast<std::size_t>(end - stop));
  const auto* const unit = std::ranges::find(kUnits, name, &Unit::name);
  if (error != std::errc() || unit == kUnits.end() || number == 0) {
    return std::nullopt;
  }
  const milliseconds duration = number * unit->length;
  return duration <= kLongestDuration ? std::optional(duration) : std::nullopt;
}

std::string DurationText(milliseconds duration) {
  const Unit* unit = kUnits.data();
  for (const Unit& one : kUnits) {
    unit = duration % one.length == milliseconds(0) ? &one : unit;
  }
  return std::to_string(duration / unit->length).append(unit->name);
}

std::string RefuseDuration(const std::string& text) {
  return ParseDuration(text)
             ? ""
             : "'" + text + "' is no duration, expected a number and ms, s, m or h, up to 24h";
}

}  // namespace strake::app
