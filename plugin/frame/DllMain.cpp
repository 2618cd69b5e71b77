// Windows' loader passes the reason code itself. Compiled only there.
#include "plugin/frame/ModuleEntry.h"

#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE /*module*/, DWORD reason, LPVOID /*reserved*/) {
  return StrakeModuleEntry(reason) != 0 ? TRUE : FALSE;
}
