#include "plugin/host/TOSSpecific.h"

#include "os/LocalTime.h"
#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostAnswer.h"
#include "platform/hostcore/HostState.h"

namespace NVELKZEV20 {

using strake::platform::BoundaryCall;

namespace {

TCIMDateTime RealLocalTime() {
  const strake::os::LocalTime now = strake::os::Now();
  TCIMDateTime result;
  result.Set(static_cast<unsigned short>(now.year), static_cast<unsigned short>(now.month),
             static_cast<unsigned int>(now.day), static_cast<unsigned short>(now.hour),
             static_cast<unsigned short>(now.minute), static_cast<unsigned short>(now.second),
             static_cast<unsigned int>(now.microseconds), static_cast<short>(now.utcOffset));
  return result;
}

}  // namespace

std::string TOSSpecific::GetMachineTypeFromID() {
  return strake::platform::GiveAnswer(BoundaryCall::GetMachineTypeFromID,
                                      strake::platform::TheHost().settings.machineTypeModel);
}

TCIMDateTime TOSSpecific::GetLocalTime() {
  const strake::platform::HostState& host = strake::platform::TheHost();
  BeginCall(host.observer, BoundaryCall::GetLocalTime);
  if (host.observer != nullptr) {
    host.observer->OnGetLocalTime();
  }
  return host.settings.localTime ? *host.settings.localTime : RealLocalTime();
}

}  // namespace NVELKZEV20
