#include "os/Handle_windows.h"
#include "tests/modules/Erratic.h"

#include <csignal>
#include <cstdlib>

namespace strake::tests {

void WriteTo(Stream stream, const std::string& text) {
  os::WriteAll(os::StandardHandle(stream == Stream::Output ? 1 : 2), text.data(), text.size());
}

// As a process that read where nothing is.
void EndByFault() {
  (void)std::raise(SIGSEGV);
  std::abort();
}

}  // namespace strake::tests
