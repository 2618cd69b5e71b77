// A report arranged as the page shows it.
#pragma once

#include "report/ChartScale.h"
#include "report/Report.h"

#include <optional>
#include <vector>

namespace strake::report {

// All that is known of one service processor.
struct ProcessorView {
  std::optional<int> number;                          // none: of no one service processor
  std::optional<bool> answered;                       // none: nothing says so
  std::vector<const cim::StoredInstance*> instances;  // but for sensors; in the catalogue's order
  std::vector<const Sensor*> sensors;                 // by kind, and as collected
  std::vector<const Finding*> findings;               // the gravest first
};

// It points into the report.
struct PageView {
  std::vector<ProcessorView> processors;  // by number, the one without behind them
  ChartScales scales;
};

PageView ArrangePage(const Report& report);

// Of its sensors, those that did not answer.
[[nodiscard]] std::size_t CountSilent(const ProcessorView& processor);

}  // namespace strake::report
