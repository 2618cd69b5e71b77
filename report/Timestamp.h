// A moment as RFC 3339 writes it, in UTC.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace strake::report {

// "2024-03-18T09:41:27Z". The year is one of 0 to 9999.
std::string Timestamp(std::chrono::sys_seconds moment);
// Reads exactly what that writes; empty when the text is anything else.
std::optional<std::chrono::sys_seconds> ParseTimestamp(std::string_view text);

}  // namespace strake::report
