#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostState.h"
#include "plugin/host/TRootObject.h"

namespace NVELKZEV20 {
namespace {

class CoreLogger : public ILogger {
 public:
  void Log(int level, const std::string& message) override {
    const strake::platform::HostState& host = strake::platform::TheHost();
    BeginCall(host.observer, strake::platform::BoundaryCall::Log);
    if (host.observer != nullptr) {
      host.observer->OnLog(level, message);
    }
    if (host.sink) {
      host.sink(level, message);
    }
  }
};

// The process' one logger. Asked for before every line, so it needs no guard.
// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
constinit CoreLogger theLogger;

}  // namespace

ILogger::~ILogger() = default;

ILogger* TRootObject::GetCoreLogger() { return &theLogger; }

}  // namespace NVELKZEV20
