#include "platform/hostcore/HostAnswer.h"

#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostControl.h"
#include "platform/server/HostSettings.h"

#include <exception>
#include <stdexcept>

namespace strake::platform {

std::string GiveAnswer(BoundaryCall call, const HostAnswer& answer) {
  BoundaryObserver* const observer = HostObserver();
  try {
    BeginCall(observer, call);
    if (answer.throws) {
      throw std::runtime_error(answer.text);
    }
  } catch (const std::exception& error) {
    if (observer != nullptr) {
      observer->OnHostThrew(call, error.what());
    }
    throw;
  } catch (...) {
    if (observer != nullptr) {
      observer->OnHostThrew(call, "unknown exception");
    }
    throw;
  }
  if (observer != nullptr) {
    observer->OnHostText(call, answer.text);
  }
  return answer.text;
}

}  // namespace strake::platform
