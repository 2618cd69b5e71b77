#include "os/Terminal.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

namespace strake::os {
namespace {

struct StandardDescriptor {
  int descriptor;
  int uselessMode;
};

// Opened the wrong way round, so that its use is still noticed as an error. In
// this order: open gives the lowest number that is free.
constexpr std::array<StandardDescriptor, 3> kStandardDescriptors{{
    {STDIN_FILENO, O_WRONLY},
    {STDOUT_FILENO, O_RDONLY},
    {STDERR_FILENO, O_RDONLY},
}};

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

bool StandardErrorCanErase() { return ObeysSequences(STDERR_FILENO); }

void OccupyStandardDescriptors() {
  for (const StandardDescriptor& standard : kStandardDescriptors) {
    if (::fcntl(standard.descriptor, F_GETFD) < 0) {
      ::open("/dev/null", standard.uselessMode);
    }
  }
}

}  // namespace strake::os
