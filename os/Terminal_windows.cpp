#include "os/FileIdentity.h"
#include "os/Handle_windows.h"
#include "os/Signals.h"
#include "os/Terminal.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>

namespace strake::os {
namespace {

// How the console is set; at the end, however that comes, it is as it was.
class Console final : private Unfinished {
 public:
  Console() { Enter(); }
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  ~Console() override {
    Leave();
    GiveBack();
  }

  // False: there is no console behind it, or none that obeys.
  bool ObeySequences(int descriptor);
  // What it is written is UTF-8.
  void TakeUtf8();

 private:
  struct Mode {
    HANDLE console = nullptr;  // null: it is as it was
    DWORD before = 0;
  };

  void EndBySignal() noexcept override { GiveBack(); }
  void GiveBack() noexcept;

  std::array<Mode, 3> fModes{};  // of the standard descriptors
  UINT fCodePage = 0;            // 0: it is as it was
};

bool Console::ObeySequences(int descriptor) {
  HANDLE const console = StandardHandle(descriptor);
  DWORD mode = 0;
  if (::GetConsoleMode(console, &mode) == 0) {
    return false;
  }
  if ((mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0) {
    return true;
  }
  const SignalHold hold;
  if (::SetConsoleMode(console, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) == 0) {
    return false;
  }
  fModes.at(static_cast<std::size_t>(descriptor)) = {console, mode};
  return true;
}

void Console::TakeUtf8() {
  const UINT before = ::GetConsoleOutputCP();
  const SignalHold hold;
  if (before != CP_UTF8 && ::SetConsoleOutputCP(CP_UTF8) != 0) {
    fCodePage = before;
  }
}

void Console::GiveBack() noexcept {
  for (Mode& mode : fModes) {
    if (mode.console != nullptr) {
      ::SetConsoleMode(mode.console, mode.before);
      mode.console = nullptr;
    }
  }
  if (fCodePage != 0) {
    ::SetConsoleOutputCP(fCodePage);
    fCodePage = 0;
  }
}

Console& TheConsole() {
  static Console console;
  return console;
}

}  // namespace

bool StandardOutputShowsColour() {
  const char* const refusal = std::getenv("NO_COLOR");
  return TheConsole().ObeySequences(kStandardOutput) && (refusal == nullptr || *refusal == '\0');
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

bool StandardOutputCanRedraw() { return TheConsole().ObeySequences(kStandardOutput); }

bool StandardErrorCanErase() { return TheConsole().ObeySequences(kStandardError); }

// Handles have no numbers that a file opened later could get. What is read is
// bytes, and what a console is given is UTF-8.
void OccupyStandardDescriptors() {
  ::_setmode(::_fileno(stdin), _O_BINARY);
  DWORD mode = 0;
  if (::GetConsoleMode(StandardHandle(kStandardOutput), &mode) != 0 ||
      ::GetConsoleMode(StandardHandle(kStandardError), &mode) != 0) {
    TheConsole().TakeUtf8();
  }
}

}  // namespace strake::os
