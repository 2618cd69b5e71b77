#include "plugin/frame/ModuleEntry.h"

#include "plugin/frame/TStrakePluginCallbacks.h"

#include <new>

int StrakeModuleEntry(unsigned int reason) {
  if (reason != strake::kProcessAttach) {
    return 1;
  }
  // The object registers itself; from here on only the host holds it.
  const auto* const object = new (std::nothrow) strake::TStrakePluginCallbacks;
  return object != nullptr ? 1 : 0;
}
