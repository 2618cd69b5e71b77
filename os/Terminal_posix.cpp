#include "os/Terminal.h"

#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/ioctl.h>
#include <unistd.h>

namespace strake::os {
namespace {

std::string_view Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string_view() : std::string_view(value);
}

bool ObeysSequences(int descriptor) {
  const std::string_view terminal = Variable("TERM");
  return ::isatty(descriptor) != 0 && !terminal.empty() && terminal != "dumb";
}

}  // namespace

bool StandardOutputShowsColour() {
  return ObeysSequences(STDOUT_FILENO) && Variable("NO_COLOR").empty();
}

std::optional<TerminalSize> StandardOutputSize() {
  winsize size{};
  if (::isatty(STDOUT_FILENO) == 0 || ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 ||
      size.ws_col == 0) {
    return std::nullopt;
  }
  return TerminalSize{size.ws_col, size.ws_row};
}

bool StandardOutputCanRedraw() { return ObeysSequences(STDOUT_FILENO); }

bool StandardErrorCanErase() { return ObeysSequences(STDERR_FILENO); }

// Opened as a mere place in the file system, so that its use is still noticed as
// an error. In ascending order: open gives the lowest number that is free.
void OccupyStandardDescriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(descriptor, F_GETFD) < 0) {
      ::open("/dev/null", O_PATH);
    }
  }
}

}  // namespace strake::os
