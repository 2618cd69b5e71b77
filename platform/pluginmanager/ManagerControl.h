// Sets up the in-process plug-in manager and tells what registered with it.
#pragma once

#include "plugin/host/IPluginCallbacks.h"

namespace strake::platform {

enum class ManagerAnswer {
  Manager,         // a TPluginManagerNamespace
  PlainNamespace,  // a namespace that is no plug-in manager
  Empty,           // no namespace at all
};

void SetManagerAnswer(ManagerAnswer answer);
void SetProviderGiven(bool given);  // false: RegisterPlugin returns null
NVELKZEV20::IPluginCallbacks* RegisteredPlugin();
void ForgetPlugin();
// How many handles to the manager namespace are held outside this library.
long ManagerHandlesHeld();

}  // namespace strake::platform
