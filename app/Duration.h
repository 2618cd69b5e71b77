// A span of time as a user writes it: "10s", "500ms".
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace strake::app {

inline constexpr std::chrono::hours kLongestDuration{24};

// A whole number from 1 and a unit: ms, s, m or h; up to a day. Empty for
// anything else.
std::optional<std::chrono::milliseconds> ParseDuration(std::string_view text);

// As it is written, in the largest unit that holds it.
std::string DurationText(std::chrono::milliseconds duration);

// What is wrong with it; empty when it is fine.
std::string RefuseDuration(const std::string& text);

}  // namespace strake::app
