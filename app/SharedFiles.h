// Keeps the command's files apart.
#pragma once

#include "app/CommandLine.h"

namespace strake::app {

// Throws UsageError when two outputs are one file, or an output is an input:
// they would destroy each other.
void RefuseSharedFiles(const CollectOptions& options);

}  // namespace strake::app
