// `strake collect` of several servers, each in a process of its own.
#pragma once

#include "app/CommandLine.h"

namespace strake::app {

// Writes a line of JSON a server, in the order of the servers, each as soon as it
// and all before it are there: its report, or why there is none, which standard
// error is told, too. Gives the exit status: kExitFailed when there was any
// failure, else the highest one of the servers. Throws UsageError, text::InputError
// and RunError before anything is collected, os::OutputError.
int CollectMany(const CollectOptions& options);

}  // namespace strake::app
