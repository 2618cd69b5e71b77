// The options that all subcommands have which query the plug-in.
#pragma once

#include "app/CollectOptions.h"
#include "app/Subcommand.h"

namespace strake::app {

// The server and the module.
void AddInput(Subcommand& app, CollectOptions& options);
// The same with any number of servers.
void AddInputs(Subcommand& app, CollectOptions& options);
// What is asked for.
void AddQueries(Subcommand& app, CollectOptions& options);
// What of it is reported, and how it is judged.
void AddSelection(Subcommand& app, CollectOptions& options);
// How the table is laid out.
void AddLayout(Subcommand& app, CollectOptions& options);
void AddLog(Subcommand& app, CollectOptions& options);
// What is told and what is not.
void AddDiscretion(Subcommand& app, CollectOptions& options);

// What follows from them when all are taken. Throws UsageError.
void CompleteQueries(const Subcommand& command, CollectOptions& options);

}  // namespace strake::app
