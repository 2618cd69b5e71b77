#include "plugin/host/TOSSpecific.h"

#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostAnswer.h"
#include "platform/hostcore/HostState.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <ctime>
#include <system_error>

namespace NVELKZEV20 {

using strake::platform::BoundaryCall;

namespace {

TCIMDateTime RealLocalTime() {
  using std::chrono::floor;
  const auto now = std::chrono::system_clock::now();
  const auto wholeSeconds = floor<std::chrono::seconds>(now);
  const auto microseconds = floor<std::chrono::microseconds>(now - wholeSeconds).count();
  const std::time_t stamp = std::chrono::system_clock::to_time_t(wholeSeconds);
  std::tm local{};
  if (localtime_r(&stamp, &local) == nullptr) {
    throw std::system_error(errno, std::generic_category(), "local time");
  }
  TCIMDateTime result;
  result.Set(static_cast<unsigned short>(local.tm_year + 1900),
             static_cast<unsigned short>(local.tm_mon + 1),
             static_cast<unsigned int>(local.tm_mday), static_cast<unsigned short>(local.tm_hour),
             static_cast<unsigned short>(local.tm_min),
             // A leap second is shown as the second before it.
             static_cast<unsigned short>(std::min(local.tm_sec, 59)),
             static_cast<unsigned int>(microseconds), static_cast<short>(local.tm_gmtoff / 60));
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
