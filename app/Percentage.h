// A percentage as a user writes it: "10", "0.5".
#pragma once

#include <optional>
#include <string>

namespace strake::app {

// A number from 0; empty for anything else.
std::optional<double> ParsePercentage(const std::string& text);

// What is wrong with it; empty when it is fine.
std::string RefusePercentage(const std::string& text);

}  // namespace strake::app
