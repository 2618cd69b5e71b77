// The driver of the network readers: which instances there are for one SP.
#include "plugin/config/DotCommandList.h"
#include "plugin/config/InstanceBuilder.h"
#include "plugin/config/NetworkSummary.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

namespace strake {

using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::kZEVSuccess;
using NVELKZEV20::SPLibrary;
using NVELKZEV20::TZEVStatusCode;

namespace {

constexpr IdentityProperty kIdentity[] = {
    IdentityProperty::CreationClassName,
    IdentityProperty::Name,
    IdentityProperty::SystemCreationClassName,
    IdentityProperty::SystemName,
    IdentityProperty::SourceNode,
};
constexpr InstanceKind kInterface = {kIPProtocolEndpoint, kIPProtocolEndpoint, kIdentity};

// Machine types whose SP reports more than one network interface but whose
// second one is not published.
constexpr std::string_view kOneInterfaceMachines[] = {
    "5217", "5216", "5215", "5214", "5213", "5212", "5211", "5210", "5209",
    "5208", "5207", "5206", "5205", "5204", "5203", "5202", "5201",
};

bool PublishesOneInterface(std::string_view machineType) {
  return std::find(std::begin(kOneInterfaceMachines), std::end(kOneInterfaceMachines),
                   machineType) != std::end(kOneInterfaceMachines);
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::tcpipcommands(boost::shared_ptr<ICIMNamespace> cimNamespace,
                                                     SPLibrary* spLib, std::string machineType,
                                                     std::string systemName, unsigned char sp) {
  LogLevel4("TStrakePluginCallbacks::tcpipcommands entered.");
  const ServiceProcessor processor(std::move(cimNamespace), spLib, std::move(machineType),
                                   std::move(systemName), sp);
  if (fServProc_IPProtocolEndpoint2) {
    PublishNetworkSummary(*this, processor);
  }
  if (fServProc_IPProtocolEndpoint) {
    PublishNetworkInterfaces(processor);
  }
  LogLevel4("TStrakePluginCallbacks::tcpipcommands completed.");
  return TZEVStatusCode(kZEVSuccess);
}

void TStrakePluginCallbacks::PublishNetworkInterfaces(const ServiceProcessor& sp) {
  const std::string firstName = MakeText(sp.nodeName, "-IPInstance#", 1);
  InstanceBuilder first(kInterface, sp.Identity(firstName));
  first.Create(sp.Number());
  first.IdentifyAll();
  NetworkInterface(sp, first, 1);
  IndividualDHCPValues(sp, first, 1);
  first.Commit();

  // Made whether or not there is a second interface; published only if so.
  const std::string secondName = MakeText(sp.nodeName, "-IPInstance#", 2);
  InstanceBuilder second(kInterface, sp.Identity(secondName));
  second.Create(sp.Number());
  second.IdentifyAll();
  DotCommandList list(*this, sp.spLib);
  if (!list.IsBuilt()) {
    return;
  }
  SharedIdentifier& interfaces = Identifiers().networkInterface;
  interfaces.Address(2);
  const short count = list.CountInstances(interfaces);
  LogLevel3("cmd_NetworkInterface instances = ", count);
  if (count == -1) {
    // Worded as for another list; readers of the trail know it so.
    LogLevel3("Failed to get componentcmdlist for dialoutsettings.");
    return;
  }
  if (count > 1) {
    const std::string_view type = std::string_view(sp.machineType).substr(0, 4);
    LogLevel4("MTM.substr(0,4) = ", type);
    if (!PublishesOneInterface(type)) {
      NetworkInterface(sp, second, 2);
      IndividualDHCPValues(sp, second, 2);
      second.Commit();
    }
  }
}

}  // namespace strake
