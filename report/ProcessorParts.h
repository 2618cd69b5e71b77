// A report by service processor, as formats for people show it.
#pragma once

#include "report/Report.h"
#include "report/Writer.h"

#include <optional>
#include <span>
#include <vector>

namespace strake::report {

// It points into the report.
struct ProcessorPart {
  std::optional<int> number;  // none: what no service processor is named with
  bool answered = true;       // what sent an instance has answered, if nothing else is known
  // But for the sensors; in the catalogue's order of classes.
  std::vector<const cim::StoredInstance*> instances;
  std::vector<const Sensor*> sensors;  // by kind, and then as it was asked for

  [[nodiscard]] std::span<const cim::StoredInstance* const> ComputerSystems() const;
  [[nodiscard]] std::span<const cim::StoredInstance* const> OtherInstances() const;
};

// Every service processor that was found or that something came from, by
// number; what came from none stands first.
std::vector<ProcessorPart> PartsOf(const Report& report, SensorOrder order);

}  // namespace strake::report
