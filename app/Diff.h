// `strake diff`: what changed between two reports.
#pragma once

#include "app/DiffOptions.h"

namespace strake::app {

// Gives the exit status. Throws text::InputError and os::OutputError.
int Diff(const DiffOptions& options);

}  // namespace strake::app
