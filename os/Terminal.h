// What standard output and standard error are.
#pragma once

#include <cstddef>
#include <optional>

namespace strake::os {

// A terminal that shows colours, and a user who has nothing against them: no
// NO_COLOR in the environment.
bool StandardOutputShowsColour();

struct TerminalSize {
  std::size_t columns;  // characters on a line
  std::size_t rows;     // 0: it does not say
};

// Of standard output; empty where that is no terminal, or one that does not say.
std::optional<TerminalSize> StandardOutputSize();

// A terminal on which what was written can be written over.
bool StandardOutputCanRedraw();

// A terminal on which a line can be taken away again.
bool StandardErrorCanErase();

// Gives the three standard descriptors something where they are closed: a file
// that is opened later would else get one of their numbers, and with it what is
// written to standard output or standard error.
void OccupyStandardDescriptors();

}  // namespace strake::os
