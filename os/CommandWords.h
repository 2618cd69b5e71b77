// The words that this process was started with.
#pragma once

#include <string>
#include <vector>

namespace strake::os {

// In UTF-8 where the system has another encoding for them, as they are elsewhere;
// the program's name is the first. Takes what main was given.
std::vector<std::string> CommandWords(int argc, const char* const* argv);

}  // namespace strake::os
