// Whether an SP instance is there: dot command 1.1, of which only the result counts.
#pragma once

#include "plugin/spaccess/SPLibrary.h"

namespace strake {

bool AnswersPresenceTest(NVELKZEV20::SPLibrary* spLib, unsigned char sp);

}  // namespace strake
