// The subcommands with their options: one source file each. What is taken goes
// into the options, which must live as long as the command line is parsed.
#pragma once

#include "app/CommandLine.h"

#include <CLI/CLI.hpp>

namespace strake::app {

CLI::App& AddCollect(CLI::App& app, CollectOptions& options);
CLI::App& AddCheck(CLI::App& app, CheckOptions& options);
CLI::App& AddDiff(CLI::App& app, DiffOptions& options);
CLI::App& AddSchema(CLI::App& app, SchemaOptions& options);
CLI::App& AddReplay(CLI::App& app, ReplayOptions& options);

// What follows from all options when they are taken. Both throw UsageError.
void CompleteCollect(const CLI::App& command, CollectOptions& options);
void CompleteDiff(const DiffOptions& options);

}  // namespace strake::app
