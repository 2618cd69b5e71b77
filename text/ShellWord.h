// Words as a shell takes them.
#pragma once

#include <string>
#include <string_view>

namespace strake::text {

// The word itself where a shell changes nothing of it, else in single quotes.
std::string ShellWord(std::string_view word);

}  // namespace strake::text
