// A word as this system's shell takes it, for commands that people are told.
#pragma once

#include <string>
#include <string_view>

namespace strake::os {

// The word itself where the shell changes nothing of it, else in quotes.
std::string ShellWord(std::string_view word);

}  // namespace strake::os
