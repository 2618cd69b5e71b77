// Takes out of a replay what names people and places.
#pragma once

#include "replay/Replay.h"

#include <cstdint>

namespace strake::replay {

// Replaces names, texts and addresses, wherever they stand, each by the same one
// everywhere (Replacements.h); codes, readings, lengths and the first four digits
// of the machine type-model stay, so that the replay's trace keeps its shape.
void Scrub(Replay& replay, std::uint64_t key);

}  // namespace strake::replay
