// Reads a boundary trace, line by line.
#pragma once

#include "replay/TraceEvent.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace strake::replay {

inline constexpr std::size_t kMostTraceBytes = std::size_t{64} * 1024 * 1024;

// Every line has to be one that a trace has, with all of its keys and no other.
// Throws text::InputError: "SOURCE: line N: at KEY: expected EXPECTED, got VALUE".
void ReadTrace(std::string_view text, const std::string& source,
               const std::function<void(TraceEvent event)>& take);

}  // namespace strake::replay
