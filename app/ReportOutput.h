// Where a finished report goes.
#pragma once

#include "app/CollectOptions.h"
#include "os/OutputFile.h"

#include <optional>
#include <string>

namespace strake::app {

// As wide and colourful as the terminal on standard output says that it is.
report::Layout LayoutOfTerminal(report::Layout layout);

// Writes it to the file, or to standard output when that is null, and tells on
// standard error what the format has no place for. Throws os::OutputError.
void WriteReport(const report::Report& report, const CollectOptions& options, os::OutputFile* file);

// What to warn of when --sensor named none; empty when there is nothing to say.
std::optional<std::string> NoSuchSensor(const report::Report& report,
                                        const CollectOptions& options);

}  // namespace strake::app
