#include "plugin/host/TCIMSchemaHelper.h"

#include "platform/boundary/BeginCall.h"
#include "platform/hostcore/HostAnswer.h"
#include "platform/hostcore/HostState.h"

namespace NVELKZEV20 {

using strake::platform::BoundaryCall;

// The host gives these two as data. NOLINTBEGIN(cert-err58-cpp)
const std::string TCIMSchemaHelper::kContextName = "QueryContext";
const std::string TCIMSchemaHelper::kPluginNSPName = "PluginNamespace";
// NOLINTEND(cert-err58-cpp)

std::string TCIMSchemaHelper::GetSystemName(boost::shared_ptr<ICIMNamespace> /*cimNamespace*/) {
  return strake::platform::GiveAnswer(BoundaryCall::GetSystemName,
                                      strake::platform::TheHost().settings.systemName);
}

// Unlike the system's name this one never throws of its own accord, so an
// injected exception is told nobody.
std::string TCIMSchemaHelper::GetSystemCreationClassName(
    boost::shared_ptr<ICIMNamespace> /*cimNamespace*/) {
  const strake::platform::HostState& host = strake::platform::TheHost();
  BeginCall(host.observer, BoundaryCall::GetSystemCreationClassName);
  if (host.observer != nullptr) {
    host.observer->OnHostText(BoundaryCall::GetSystemCreationClassName,
                              host.settings.systemCreationClassName);
  }
  return host.settings.systemCreationClassName;
}

}  // namespace NVELKZEV20
