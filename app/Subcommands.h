// The subcommands with their options: one source file each. What is taken goes
// into the options, which must live as long as the command line is parsed.
#pragma once

#include "app/CommandLine.h"
#include "app/CompletionShells.h"
#include "app/Subcommand.h"

namespace strake::app {

struct CompletionOptions {
  const CompletionShell* shell = nullptr;
};

Subcommand AddCollect(CLI::App& app, CollectOptions& options);
Subcommand AddWatch(CLI::App& app, WatchOptions& options);
Subcommand AddCheck(CLI::App& app, CheckOptions& options);
Subcommand AddDiff(CLI::App& app, DiffOptions& options);
Subcommand AddSchema(CLI::App& app, SchemaOptions& options);
Subcommand AddReplay(CLI::App& app, ReplayOptions& options);
Subcommand AddInit(CLI::App& app, InitOptions& options);
Subcommand AddCompletion(CLI::App& app, CompletionOptions& options);

// What follows from all options when they are taken. They throw UsageError.
void CompleteCollect(const Subcommand& command, CollectOptions& options);
void CompleteDiff(const Subcommand& command, const DiffOptions& options);
void CompleteInit(const Subcommand& command, InitOptions& options);

}  // namespace strake::app
