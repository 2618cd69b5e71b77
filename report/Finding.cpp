#include "report/Finding.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace strake::report {
namespace {

constexpr std::array<std::string_view, 3> kSeverities{"info", "warning", "critical"};

// In the order of FindingCode.
constexpr std::array<std::string_view, kFindingCodes> kCodes{
    "no-sp",       "sp-silent",          "not-communicating", "machine-unknown", "held",
    "list-length", "command-unanswered", "sensor-unanswered", "limit",           "equal-keys",
    "partial"};

}  // namespace

std::string_view SeverityName(Severity severity) {
  return kSeverities.at(static_cast<std::size_t>(severity));
}

std::optional<Severity> FindSeverity(std::string_view name) {
  const auto* const found = std::ranges::find(kSeverities, name);
  if (found == kSeverities.end()) {
    return std::nullopt;
  }
  return static_cast<Severity>(found - kSeverities.begin());
}

std::string_view CodeName(FindingCode code) { return kCodes.at(static_cast<std::size_t>(code)); }

}  // namespace strake::report
