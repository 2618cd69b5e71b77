// The driver of the network readers: the SNMP and DNS summary of one SP, and
// which of its interfaces there are instances of.
#include "plugin/config/DotCommandList.h"
#include "plugin/config/NetworkRecords.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SharedIdentifiers.h"

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

constexpr IdentityProperty kSummaryIdentity[] = {
    IdentityProperty::CreationClassName,       IdentityProperty::SourceNode, IdentityProperty::Name,
    IdentityProperty::SystemCreationClassName, IdentityProperty::SystemName,
};
constexpr InstanceKind kSummary = {kIPProtocolEndpoint2, kIPProtocolEndpoint2, kSummaryIdentity};

constexpr IdentityProperty kInterfaceIdentity[] = {
    IdentityProperty::CreationClassName,
    IdentityProperty::Name,
    IdentityProperty::SystemCreationClassName,
    IdentityProperty::SystemName,
    IdentityProperty::SourceNode,
};
constexpr InstanceKind kInterface = {kIPProtocolEndpoint, kIPProtocolEndpoint, kInterfaceIdentity};

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

void PublishSummary(const ServiceProcessor& sp) {
  const TStrakePluginCallbacks& callbacks = sp.link.callbacks;
  const InstanceBuilder instance(kSummary, sp.Identity());
  instance.IdentifyAll();
  NetworkReply reply;
  std::string text;
  for (const SummaryValue& value : kSummaryValues) {
    if (!sp.link.Ask(value.identifier.Bytes(), reply)) {
      callbacks.LogLevel3("No data retrieved for ", value.name);
      continue;
    }
    value.decode(reply.Received(), text);
    callbacks.LogLevel3(value.name, " = ", text);
    instance.Set(value.name, text);
  }
  for (const SummaryRecord& record : kSummaryRecords) {
    if (!sp.link.Ask(record.identifier.Bytes(), reply)) {
      callbacks.LogLevel3("No data retrieved for ", record.name);
      continue;
    }
    PublishRecord(callbacks, record.layout, reply.Whole(), instance.Instance());
  }
  instance.Commit();
}

// True when the SP has a second interface and the machine shows it.
bool HasSecondInterface(const ServiceProcessor& sp) {
  const TStrakePluginCallbacks& callbacks = sp.link.callbacks;
  DotCommandList list(callbacks, sp.link.spLib);
  if (!list.IsBuilt()) {
    return false;
  }
  DotIdentifier& interfaces = Identifiers().networkInterface;
  interfaces.Address(2);
  const short count = list.CountInstances(interfaces);
  callbacks.LogLevel3("cmd_NetworkInterface instances = ", count);
  if (count == -1) {
    // Worded as for another list.
    callbacks.LogLevel3("Failed to get componentcmdlist for dialoutsettings.");
    return false;
  }
  if (count <= 1) {
    return false;
  }
  const std::string_view machineType = std::string_view(sp.MTM).substr(0, 4);
  callbacks.LogLevel4("MTM.substr(0,4) = ", machineType);
  return !PublishesOneInterface(machineType);
}

void PublishInterface(const ServiceProcessor& sp, const InstanceBuilder& instance,
                      unsigned char number) {
  const SpLink& link = sp.link;
  link.callbacks.NetworkInterface(sp.cimNamespace, instance.Instance(), number, link.spLib,
                                  link.sp);
  link.callbacks.IndividualDHCPValues(sp.cimNamespace, instance.Instance(), number, link.spLib,
                                      link.sp);
  instance.Commit();
}

void PublishInterfaces(const ServiceProcessor& sp) {
  const std::string firstName = MakeText(sp.nodeName, "-IPInstance#", 1);
  const InstanceBuilder first(kInterface, sp.Identity(firstName));
  first.IdentifyAll();
  PublishInterface(sp, first, 1);

  // Made whether or not there is a second interface; published only if so.
  const std::string secondName = MakeText(sp.nodeName, "-IPInstance#", 2);
  const InstanceBuilder second(kInterface, sp.Identity(secondName));
  second.IdentifyAll();
  if (HasSecondInterface(sp)) {
    PublishInterface(sp, second, 2);
  }
}

}  // namespace

TZEVStatusCode TStrakePluginCallbacks::tcpipcommands(boost::shared_ptr<ICIMNamespace> cimNamespace,
                                                     SPLibrary* spLib, std::string MTM,
                                                     std::string systemName, unsigned char sp) {
  LogLevel4("TStrakePluginCallbacks::tcpipcommands entered.");
  const ServiceProcessor processor = {
      {*this, spLib, sp}, std::move(cimNamespace), std::move(MTM), std::move(systemName)};
  if (fServProc_IPProtocolEndpoint2) {
    PublishSummary(processor);
  }
  if (fServProc_IPProtocolEndpoint) {
    PublishInterfaces(processor);
  }
  LogLevel4("TStrakePluginCallbacks::tcpipcommands completed.");
  return TZEVStatusCode(kZEVSuccess);
}

}  // namespace strake
