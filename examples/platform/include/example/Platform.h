// What this platform's host asks of its libraries beside the plug-in's
// declarations.
#pragma once

#include "plugin/host/IPluginCallbacks.h"

#include <boost/shared_ptr.hpp>
#include <string>

namespace platform {

// A namespace whose instances print themselves when they are committed.
boost::shared_ptr<NVELKZEV20::ICIMNamespace> MakeNamespace();
// What registered last; null when nothing did.
NVELKZEV20::IPluginCallbacks* Registered();

}  // namespace platform
