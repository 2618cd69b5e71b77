#include "app/Percentage.h"

#include <charconv>
#include <cmath>
#include <memory>

namespace strake::app {

std::optional<double> ParsePercentage(const std::string& text) {
  double percent = 0;
  const char* const end = std::to_address(text.end());
  const auto [stop, error] = std::from_chars(text.data(), end, percent);
  const bool isPercent =
      error == std::errc() && stop == end && std::isfinite(percent) && percent >= 0;
  return isPercent ? std::optional<double>(percent) : std::nullopt;
}

std::string RefusePercentage(const std::string& text) {
  return ParsePercentage(text) ? "" : "'" + text + "' is no percentage, expected a number from 0";
}

}  // namespace strake::app
