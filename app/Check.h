// `strake check`: is a server description fine?
#pragma once

#include "app/CommandLine.h"

#include <string>

namespace strake::app {

// One line that says what the file describes. Throws platform::DescriptionError.
std::string CheckDescription(const CheckOptions& options);

}  // namespace strake::app
