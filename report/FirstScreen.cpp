#include "report/FirstScreen.h"

#include "report/FindingTable.h"
#include "report/SensorTally.h"
#include "report/ValueForPeople.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <functional>

namespace strake::report {
namespace {

constexpr std::size_t kKindIndent = 2;
// Up to this many have a row for each kind of sensors.
constexpr std::size_t kMostAtLength = 4;
constexpr std::size_t kMostProcessors = 16;
constexpr std::size_t kMostFindings = 5;

using Parts = std::vector<const ProcessorPart*>;

// Of the first instance in which it is set to something; empty: of none.
std::string FirstValue(const ProcessorPart& part, std::string_view property,
                       std::string_view nothing) {
  for (const cim::StoredInstance* const instance : part.instances) {
    if (const cim::Value* const value = cim::FindValue(*instance, property)) {
      std::string text = ValueForPeople(*value);
      if (!text.empty() && text != nothing) {
        return text;
      }
    }
  }
  return "";
}

// What it is called, whether it answered, its address and its clock.
Cells ProcessorCells(const ProcessorPart& part) {
  Cell answer;
  if (part.number) {
    answer = {std::string(AnswerText(part.answer)),
              part.answer == Answer::No ? Shade::Warning : Shade::None};
  }
  return {{ProcessorLabel(part.number, "no SP"), Shade::Heading},
          answer,
          {FirstValue(part, "HostIPAddress", "0.0.0.0")},
          {FirstValue(part, "SPClock", "")}};
}

// Red or yellow, as the gravest of it is.
Cell TroubleCell(const SensorTally& tally) {
  return {TroubleText(tally), tally.criticals > 0 ? Shade::Critical : Shade::Warning};
}

void WriteAtLength(const Parts& parts, TableText& out) {
  Columns columns(4);
  Columns kindColumns = {{}, {.align = Align::Right}, {}, {}};
  std::vector<std::vector<Cells>> kinds;
  for (const ProcessorPart* const part : parts) {
    Widen(columns, ProcessorCells(*part));
    std::vector<Cells>& rows = kinds.emplace_back();
    for (int number = 0; number < kSensorKinds; ++number) {
      const auto kind = static_cast<SensorKind>(number);
      const SensorTally tally = TallyOf(part->SensorsOf(kind));
      if (tally.count == 0) {
        continue;
      }
      Widen(kindColumns, rows.emplace_back(Cells{{std::string(KindHeading(kind))},
                                                 {std::to_string(tally.count)},
                                                 {RangeText(tally)},
                                                 TroubleCell(tally)}));
    }
  }
  for (std::size_t index = 0; index < parts.size(); ++index) {
    out.Row(0, ProcessorCells(*parts[index]), columns);
    for (const Cells& cells : kinds[index]) {
      out.Row(kKindIndent, cells, kindColumns);
    }
  }
}

void WriteInShort(const Parts& parts, TableText& out) {
  std::vector<Cells> rows;
  for (const ProcessorPart* const part : parts) {
    Cells& cells = rows.emplace_back(ProcessorCells(*part));
    const SensorTally tally = TallyOf(part->sensors);
    cells.push_back({tally.count == 0 ? "" : Counted(tally.count, "sensor", "sensors")});
    cells.push_back(TroubleCell(tally));
  }
  out.Rows(0, rows, Columns(6));
}

// Those that did not answer before all others, then by the gravest finding.
Parts GravestFirst(std::span<const ProcessorPart> parts) {
  const auto rank = [](const ProcessorPart* part) {
    constexpr int kUnanswered = 3;
    if (part->answer == Answer::No) {
      return kUnanswered;
    }
    return part->findings.empty() ? -1 : static_cast<int>(part->findings.front()->severity);
  };
  Parts sorted;
  for (const ProcessorPart& part : parts) {
    if (part.number || !part.sensors.empty()) {
      sorted.push_back(&part);
    }
  }
  std::ranges::stable_sort(sorted, std::greater<>(), rank);
  return sorted;
}

// "and 238 more, all answered", "and 238 more, 4 of which did not answer".
std::string RestText(std::span<const ProcessorPart* const> rest) {
  const auto count = [rest](Answer answer) {
    return static_cast<std::size_t>(std::ranges::count(rest, answer, &ProcessorPart::answer));
  };
  std::string text = "and " + std::to_string(rest.size()) + " more";
  const std::size_t silent = count(Answer::No);
  const std::size_t notAsked = count(Answer::NotAsked);
  if (silent == rest.size()) {
    AppendListed(text, "none of which answered");
  } else if (silent > 0) {
    AppendListed(text, std::to_string(silent) + " of which did not answer");
  }
  if (notAsked > 0) {
    AppendListed(text, Counted(notAsked, "of which was not asked", "of which were not asked"));
  }
  if (count(Answer::Yes) == rest.size()) {
    AppendListed(text, "all answered");
  }
  return text;
}

// The gravest come first, and are written by number.
void WriteProcessors(Parts shown, TableText& out) {
  Parts rest;
  if (shown.size() > kMostProcessors) {
    rest.assign(shown.begin() + kMostProcessors, shown.end());
    shown.resize(kMostProcessors);
  }
  std::ranges::sort(shown);  // by number, as the parts stand
  shown.size() <= kMostAtLength ? WriteAtLength(shown, out) : WriteInShort(shown, out);
  if (!rest.empty()) {
    out.Line(0, RestText(rest));
  }
}

// Those that are no more than information are only counted.
void WriteFindingsInShort(std::span<const Finding> findings, TableText& out) {
  const auto grave = static_cast<std::size_t>(std::ranges::count_if(
      findings, [](const Finding& one) { return one.severity != Severity::Info; }));
  out.Line(0, "Findings: " + FindingCounts(findings), Shade::Heading);
  WriteFindingRows(findings.first(std::min(grave, kMostFindings)), out);
  if (grave > kMostFindings) {
    out.Line(kKindIndent, "and " + std::to_string(grave - kMostFindings) + " more at the end");
  }
}

}  // namespace

void WriteFirstScreen(const Report& report, std::span<const ProcessorPart> parts, TableText& out) {
  const Parts shown = GravestFirst(parts);
  if (!shown.empty()) {
    out.Blank();
    WriteProcessors(shown, out);
  }
  if (!shown.empty() || !report.Findings().empty()) {
    out.Blank();
    WriteFindingsInShort(report.Findings(), out);
  }
}

}  // namespace strake::report
