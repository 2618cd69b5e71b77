// A report by service processor, as formats for people show it.
#pragma once

#include "report/Report.h"
#include "report/Writer.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace strake::report {

// All that is known of one service processor. It points into the report.
struct ProcessorPart {
  std::optional<int> number;    // none: what no service processor is named with
  Answer answer = Answer::Yes;  // also of one that the report does not list
  // But for the sensors; in the catalogue's order of classes.
  std::vector<const cim::StoredInstance*> instances;
  std::vector<const Sensor*> sensors;    // by kind, and then as it was asked for
  std::vector<const Finding*> findings;  // the gravest first

  [[nodiscard]] std::span<const cim::StoredInstance* const> ComputerSystems() const;
  [[nodiscard]] std::span<const cim::StoredInstance* const> OtherInstances() const;
  [[nodiscard]] std::span<const Sensor* const> SensorsOf(SensorKind kind) const;
};

// Every service processor that was found or that instances or silent sensors
// came from, by number; what came from none stands behind them.
std::vector<ProcessorPart> PartsOf(const Report& report, SensorOrder order);

// "answered", "did not answer", "not asked".
std::string_view AnswerText(Answer answer);

// Those with a number, and of them those with this answer.
std::size_t CountNumbered(std::span<const ProcessorPart> parts);
std::size_t CountNumbered(std::span<const ProcessorPart> parts, Answer answer);

}  // namespace strake::report
