// What stands in a description and is never asked for.
#pragma once

#include "platform/server/ServerDescription.h"

#include <string>
#include <vector>

namespace strake::app {

// For people, each with the place where it stands. What a switch of the
// description turns off (`communicates`, `dorn_library`) is not told.
std::vector<std::string> UnusedParts(const platform::ServerDescription& server);

}  // namespace strake::app
