// Reads a report back that was written as JSON.
#pragma once

#include "cim/StoredInstance.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace strake::report {

// What a report of format strake-report/1 holds, as far as somebody compares it.
struct ReadReport {
  std::string server;  // its name
  std::chrono::sys_seconds collectedAt;
  std::vector<cim::StoredInstance> instances;  // properties in the catalogue's order
};

inline constexpr std::size_t kMostReportBytes = std::size_t{256} * 1024 * 1024;

// Throws text::InputError, which names the source, the place and what was
// expected: another format, a class, a property or a type that the catalogue
// does not have.
ReadReport ParseReport(std::string_view text, const std::string& source);

}  // namespace strake::report
