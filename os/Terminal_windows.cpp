#include "os/FileIdentity.h"
#include "os/Handle_windows.h"
#include "os/Terminal.h"

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>

namespace strake::os {
namespace {

bool ObeysSequences(int descriptor) {
  HANDLE const console = StandardHandle(descriptor);
  DWORD mode = 0;
  return ::GetConsoleMode(console, &mode) != 0 &&
         ::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace

bool StandardOutputShowsColour() {
  const char* const refusal = std::getenv("NO_COLOR");
  return ObeysSequences(kStandardOutput) && (refusal == nullptr || *refusal == '\0');
}

std::optional<TerminalSize> StandardOutputSize() {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (::GetConsoleScreenBufferInfo(StandardHandle(kStandardOutput), &info) == 0) {
    return std::nullopt;
  }
  const SMALL_RECT& window = info.srWindow;
  return TerminalSize{static_cast<std::size_t>(window.Right - window.Left + 1),
                      static_cast<std::size_t>(window.Bottom - window.Top + 1)};
}

bool StandardOutputCanRedraw() { return ObeysSequences(kStandardOutput); }

bool StandardErrorCanErase() { return ObeysSequences(kStandardError); }

// Handles have no numbers that a file opened later could get. What is read is
// bytes, and what a console is given is UTF-8.
void OccupyStandardDescriptors() {
  ::_setmode(::_fileno(stdin), _O_BINARY);
  DWORD mode = 0;
  if (::GetConsoleMode(StandardHandle(kStandardOutput), &mode) != 0 ||
      ::GetConsoleMode(StandardHandle(kStandardError), &mode) != 0) {
    ::SetConsoleOutputCP(CP_UTF8);
  }
}

}  // namespace strake::os
