// `strake replay`: a server description out of a trace.
#pragma once

#include "app/ReplayOptions.h"

namespace strake::app {

// Gives the exit status. Throws UsageError, text::InputError and
// os::OutputError.
int Replay(const ReplayOptions& options);

}  // namespace strake::app
