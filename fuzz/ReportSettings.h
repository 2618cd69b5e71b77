// What a finished collection of the report harness has beside its instances, and
// how it is written: all of it follows from the input's bytes, of which any other
// one gives something else.
#pragma once

#include "fuzz/ReportBytes.h"
#include "report/Writer.h"

#include <optional>
#include <span>
#include <vector>

namespace strake::fuzz {

struct ReportSettings {
  report::Layout layout;
  std::optional<report::Limits> limits;
  std::vector<report::Processor> processors;
  std::vector<report::SilentSensor> silentSensors;
  std::vector<report::Finding> findings;
};

// Texts are the server's.
ReportSettings SettingsOf(std::span<const unsigned char> input, const ReportCase& reportCase);

}  // namespace strake::fuzz
