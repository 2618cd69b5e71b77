// Where the text of a subcommand goes.
#pragma once

#include "os/OutputFile.h"
#include "report/Writer.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace strake::app {

using WriteTo = std::function<void(const report::Sink& sink)>;

// To standard output in large pieces, and to a file, which is complete then.
// Both throw os::OutputError.
void WriteToStandardOutput(const WriteTo& write);
void WriteToFile(os::OutputFile& file, const WriteTo& write);

// To the file, which others may read; to standard output without a name or for
// "-".
void WriteOutput(const std::optional<std::filesystem::path>& name, const WriteTo& write);

}  // namespace strake::app
