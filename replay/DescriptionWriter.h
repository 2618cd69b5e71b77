// Writes a replay as a server description.
#pragma once

#include "replay/Replay.h"

#include <string>
#include <string_view>
#include <vector>

namespace strake::replay {

// The words of a shell that collect the same again from the description.
std::string CommandOf(const Replay& replay, std::string_view file);

// The JSON text, replies as bytes; "capture" names the source, the command and the
// warnings.
std::string WriteDescription(const Replay& replay);

}  // namespace strake::replay
