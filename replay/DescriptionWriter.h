// Writes a replay as a server description.
#pragma once

#include "replay/Replay.h"

#include <string>
#include <string_view>
#include <vector>

namespace strake::replay {

// A word as a shell takes it.
using Quote = std::string (*)(std::string_view word);

// The words of a shell that collect the same again from the description.
std::string CommandOf(const Replay& replay, std::string_view file, Quote quote);

// The JSON text, replies as bytes; "capture" names the source, the command and the
// warnings.
std::string WriteDescription(const Replay& replay);

}  // namespace strake::replay
