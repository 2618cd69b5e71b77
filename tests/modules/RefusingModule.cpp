// A module that does not join: its entry reports a failure.
#include "plugin/frame/ModuleEntry.h"

extern "C" int StrakeModuleEntry(unsigned int /*reason*/) { return 0; }
