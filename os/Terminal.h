// What standard output is.
#pragma once

namespace strake::os {

// A terminal that shows colours, and a user who has nothing against them: no
// NO_COLOR in the environment.
bool StandardOutputShowsColour();

// Gives the three standard descriptors something where they are closed: a file
// that is opened later would else get one of their numbers, and with it what is
// written to standard output or standard error.
void OccupyStandardDescriptors();

}  // namespace strake::os
