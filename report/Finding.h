// What a collection tells beside its instances: what did not answer, and what is
// out of bounds.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace strake::report {

enum class Severity : std::uint8_t { Info, Warning, Critical };

enum class FindingCode : std::uint8_t {
  NoSp,              // no service processor, or not the one that was asked for
  SpSilent,          // it was found, and does not answer its presence test
  NotCommunicating,  // the card does not answer at all
  MachineUnknown,    // no family of Tavit machines has this machine type
  Held,              // the management server holds the processor
  ListLength,        // a list of readings has another length than the family's
  CommandUnanswered,
  SensorUnanswered,
  Limit,      // a reading is out of its limits
  EqualKeys,  // instances that no key tells apart
  Partial,    // what a live service processor did not let us read
};

struct Finding {
  Severity severity = Severity::Info;
  FindingCode code = FindingCode::NoSp;
  std::optional<int> sp;  // from 1; none: no one service processor is meant
  std::string text;       // one line, safe to show

  friend bool operator==(const Finding&, const Finding&) = default;
};

// "info", "warning", "critical".
std::string_view SeverityName(Severity severity);
std::optional<Severity> FindSeverity(std::string_view name);

// "no-sp", "sp-silent" and so on; programs know findings by it.
std::string_view CodeName(FindingCode code);

inline constexpr int kFindingCodes = 11;

}  // namespace strake::report
