// The module entry as Windows' loader calls it.
#include "plugin/frame/ModuleEntry.h"

#include <windows.h>

// The loader's own reason codes: 1 when the module joins the process. No exception
// may reach the loader, which takes one for a module that failed.
extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, LPVOID /*reserved*/) {
  try {
    return StrakeModuleEntry(reason) != 0 ? TRUE : FALSE;
  } catch (...) {
    return FALSE;
  }
}
