// Keeps the command's files apart.
#pragma once

#include "app/CommandLine.h"

namespace strake::app {

// Whether the report does: without --output, and with one that names it.
bool GoesToStandardOutput(const CollectOptions& options);
bool GoesToStandardOutput(const ReplayOptions& options);

// Throws UsageError when two outputs are one file, or an output is an input or
// the file behind standard output or standard error: they would destroy each
// other. Also when an output is a descriptor that is not open; called before the
// command opens files of its own.
void RefuseSharedFiles(const CollectOptions& options);
void RefuseSharedFiles(const ReplayOptions& options);

}  // namespace strake::app
