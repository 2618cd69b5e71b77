// `strake watch`: collects again and again from one session with the plug-in, and
// shows what changed.
#pragma once

#include "app/WatchOptions.h"

namespace strake::app {

// Gives the exit status. Throws as Collect does.
int Watch(const WatchOptions& options);

}  // namespace strake::app
