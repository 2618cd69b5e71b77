#include "os/Handle_windows.h"
#include "tests/modules/Erratic.h"

#include <cstdlib>

namespace strake::tests {

void WriteTo(Stream stream, const std::string& text) {
  os::WriteAll(os::StandardHandle(stream == Stream::Output ? 1 : 2), text.data(), text.size());
}

// With the status of a process that read where nothing is.
void EndByFault() {
  ::TerminateProcess(::GetCurrentProcess(), 0xC0000005);
  std::abort();
}

}  // namespace strake::tests
