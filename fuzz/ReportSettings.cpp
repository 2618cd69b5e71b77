#include "fuzz/ReportSettings.h"

#include "text/TextEscape.h"

#include <array>
#include <cstdint>
#include <random>

namespace strake::fuzz {
namespace {

constexpr std::array kProcessors{0, 1, 2, 3, 255};
constexpr std::array<std::size_t, 5> kColumns{0, 1, 80, 110, 200};
constexpr unsigned int kMost = 4;

// FNV-1a.
std::uint32_t HashOf(std::span<const unsigned char> bytes) {
  std::uint32_t hash = 2166136261U;
  for (const unsigned char byte : bytes) {
    hash = (hash ^ byte) * 16777619U;
  }
  return hash;
}

class Draws {
 public:
  Draws(std::span<const unsigned char> input, const ReportCase& reportCase)
      : fEngine(HashOf(input)), fCase(&reportCase) {}

  // Below `end`.
  unsigned int Number(unsigned int end) { return static_cast<unsigned int>(fEngine() % end); }
  bool Yes() { return Number(2) == 1; }
  template <typename Enum>
  Enum OneOf(unsigned int count) {
    return static_cast<Enum>(Number(count));
  }
  template <typename Table>
  auto Of(const Table& table) {
    return table[Number(static_cast<unsigned int>(table.size()))];
  }
  std::string Text() {
    return Of(std::array<std::string, 4>{fCase->serverName, fCase->serverDescription,
                                         "Planar Voltage +5v ", ""});
  }

 private:
  std::mt19937 fEngine;
  const ReportCase* fCase;
};

report::LimitRule RuleOf(Draws& draws) {
  report::LimitRule rule;
  if (draws.Yes()) rule.kind = draws.OneOf<report::SensorKind>(report::kSensorKinds);
  if (draws.Yes()) rule.sp = draws.Of(kProcessors);
  if (draws.Yes()) rule.lowerCritical = report::Bound{-1000, "-1000"};
  if (draws.Yes()) rule.lowerWarning = report::Bound{-100, "-100"};
  if (draws.Yes()) rule.upperWarning = report::Bound{0.5, "0.5"};
  if (draws.Yes()) rule.upperCritical = report::Bound{100, "100"};
  return rule;
}

report::Finding FindingOf(Draws& draws) {
  report::Finding finding;
  finding.severity = draws.OneOf<report::Severity>(3);
  finding.code = draws.OneOf<report::FindingCode>(report::kFindingCodes);
  if (draws.Yes()) finding.sp = draws.Of(kProcessors);
  finding.text = text::EscapeForPeople(draws.Text());
  return finding;
}

}  // namespace

ReportSettings SettingsOf(std::span<const unsigned char> input, const ReportCase& reportCase) {
  Draws draws(input, reportCase);
  ReportSettings settings;
  settings.layout.columns = draws.Of(kColumns);
  settings.layout.order = draws.OneOf<report::SensorOrder>(4);
  settings.layout.header = draws.Yes();
  if (draws.Yes()) {
    report::Limits& limits = settings.limits.emplace();
    for (unsigned int left = draws.Number(kMost); left > 0; --left) {
      limits.push_back(RuleOf(draws));
    }
  }
  for (const int number : kProcessors) {
    if (draws.Yes()) settings.processors.push_back({number, draws.OneOf<report::Answer>(3)});
  }
  for (unsigned int left = draws.Number(kMost); left > 0; --left) {
    const int sp = draws.Of(kProcessors);
    const std::string name = draws.Text();
    settings.silentSensors.push_back(
        {sp, name, draws.OneOf<report::SensorKind>(report::kSensorKinds)});
  }
  for (unsigned int left = draws.Number(kMost); left > 0; --left) {
    settings.findings.push_back(FindingOf(draws));
  }
  return settings;
}

}  // namespace strake::fuzz
