#include "plugin/frame/ModuleEntry.h"

#include "plugin/frame/TStrakePluginCallbacks.h"

#include <new>
#ifdef _WIN32
#include <windows.h>
#endif

int StrakeModuleEntry(unsigned int reason) {
  if (reason != strake::kProcessAttach) {
    return 1;
  }
  // The object registers itself; from here on only the host holds it.
  const auto* const object = new (std::nothrow) strake::TStrakePluginCallbacks;
  return object != nullptr ? 1 : 0;
}

#ifdef _WIN32
// Windows' loader passes the reason code itself.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, LPVOID /*reserved*/) {
  return StrakeModuleEntry(reason) != 0 ? TRUE : FALSE;
}
#endif
