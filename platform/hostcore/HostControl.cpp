#include "platform/hostcore/HostControl.h"

#include "platform/hostcore/HostState.h"

#include <utility>

namespace strake::platform {

HostState& TheHost() {
  static HostState host;
  return host;
}

void SetHost(const HostSettings& settings) { TheHost().settings = settings; }
void SetHostObserver(BoundaryObserver* observer) { TheHost().observer = observer; }
BoundaryObserver* HostObserver() { return TheHost().observer; }
void SetLogSink(LogSink sink) { TheHost().sink = std::move(sink); }

}  // namespace strake::platform
