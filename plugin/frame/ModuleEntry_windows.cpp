// The module entry as Windows' loader calls it.
#include "plugin/frame/ModuleEntry.h"

#include <exception>
#include <string>
#include <windows.h>

namespace {

// Where the system has it from, whoever debugs the process or listens like a
// debugger hears of it.
BOOL Refuse(const char* text) noexcept {
  try {
    const std::string line = "StrakeModuleEntry ended with an exception";
    ::OutputDebugStringA((text == nullptr ? line : line + ": " + text).c_str());
  } catch (...) {  // NOLINT(bugprone-empty-catch)
    // No memory to say it with.
  }
  return FALSE;
}

}  // namespace

// The loader's own reason codes: 1 when the module joins the process. No exception
// may reach the loader, which takes one for a module that failed and keeps no text.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, LPVOID /*reserved*/) {
  try {
    return StrakeModuleEntry(reason) != 0 ? TRUE : FALSE;
  } catch (const std::exception& error) {
    return Refuse(error.what());
  } catch (...) {
    return Refuse(nullptr);
  }
}
