// What the in-process host core was set up with.
#pragma once

#include "platform/hostcore/HostControl.h"
#include "platform/server/HostSettings.h"

namespace strake::platform {

struct HostState {
  HostSettings settings;
  BoundaryObserver* observer = nullptr;
  LogSink sink;
};

// The process' one host.
HostState& TheHost();

}  // namespace strake::platform
