// What standard output and standard error are.
#pragma once

#include <cstddef>
#include <optional>

namespace strake::os {

// A terminal that shows colours, and a user who has nothing against them: no
// NO_COLOR in the environment.
bool StandardOutputShowsColour();

// How many characters fit on a line of standard output; empty where that is no
// terminal, or one that does not say.
std::optional<std::size_t> StandardOutputColumns();

// A terminal on which a line can be taken away again.
bool StandardErrorCanErase();

// Gives the three standard descriptors something where they are closed: a file
// that is opened later would else get one of their numbers, and with it what is
// written to standard output or standard error.
void OccupyStandardDescriptors();

}  // namespace strake::os
