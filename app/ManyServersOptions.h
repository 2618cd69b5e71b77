// The options of a collection of several servers.
#pragma once

#include "app/CollectOptions.h"
#include "app/Subcommand.h"

namespace strake::app {

void AddManyServers(Subcommand& app, CollectOptions& options);

// A single server without these options is collected in this process. Called when
// the format is chosen. Throws UsageError.
void CompleteManyServers(const Subcommand& command, CollectOptions& options);

}  // namespace strake::app
