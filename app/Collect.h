// `strake collect`: load the plug-in, query it, report.
#pragma once

#include "app/CommandLine.h"

namespace strake::app {

// Gives the exit status. Throws UsageError or text::InputError before
// anything is written;
// RunError or platform::SessionError when the run fails, and then there is no
// report, but what the trace and the log hold of the queries is kept.
int Collect(const CollectOptions& options);

}  // namespace strake::app
