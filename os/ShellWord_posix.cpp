#include "os/ShellWord.h"
#include "text/ShellWord.h"

namespace strake::os {

std::string ShellWord(std::string_view word) { return text::ShellWord(word); }

}  // namespace strake::os
