#include "os/CommandLine_windows.h"
#include "os/Handle_windows.h"
#include "os/ShellWord.h"
#include "text/ShellWord.h"

#include <algorithm>

namespace strake::os {

// A backslash stands between folders.
std::string ShellWord(std::string_view word) {
  std::string slashed(word);
  std::ranges::replace(slashed, '\\', '/');
  return text::ShellWord(slashed) == slashed ? std::string(word) : ToUtf8(InQuotes(ToWide(word)));
}

}  // namespace strake::os
