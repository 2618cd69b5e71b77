// `strake init`: a server description to begin with.
#pragma once

#include "app/InitOptions.h"

namespace strake::app {

// Gives the exit status. Throws UsageError, also for a file that is there already
// and not empty, and os::OutputError.
int Init(const InitOptions& options);

}  // namespace strake::app
