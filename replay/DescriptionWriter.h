// Writes a server description for people and for the next run.
#pragma once

#include "replay/Replay.h"

#include <string>
#include <string_view>
#include <vector>

namespace strake::replay {

// The words of a shell that collect the same again from the description.
std::string CommandOf(const Replay& replay, std::string_view file);

// The JSON text (strake-server/1): one command a line, what is as by default left
// out; "capture" names the source, the command and the warnings.
std::string WriteDescription(const Replay& replay);

}  // namespace strake::replay
