// `strake check`: are these server descriptions fine?
#pragma once

#include "app/CommandLine.h"

namespace strake::app {

// Tells of every file on standard output what it describes, and what of it
// nothing will ask for; of a file that is refused on standard error. Gives the
// exit status. Throws RunError.
int Check(const CheckOptions& options);

}  // namespace strake::app
