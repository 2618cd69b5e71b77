// The readers of one network interface: its configuration summary, one command,
// and what the DHCP server assigned to it, one command a value.
#include "plugin/config/NetworkRecords.h"
#include "plugin/config/ServiceProcessor.h"
#include "plugin/config/SharedIdentifiers.h"

#include <iterator>

namespace strake {

using NVELKZEV20::ICIMInstance;
using NVELKZEV20::ICIMNamespace;
using NVELKZEV20::SPLibrary;

void TStrakePluginCallbacks::NetworkInterface(boost::shared_ptr<ICIMNamespace> /*cimNamespace*/,
                                              boost::shared_ptr<ICIMInstance> instance,
                                              unsigned char number, SPLibrary* spLib,
                                              unsigned char sp) {
  LogLevel4("TStrakePluginCallbacks::NetworkInterface entered.");
  SetProperty(instance, "instance", MakeText(number));
  LogLevel3("instance = ", number);

  const SpLink link = {*this, spLib, sp};
  NetworkReply reply;
  DotIdentifier& identifier = Identifiers().networkInterface;
  identifier.Address(number);
  if (link.Ask(identifier.Bytes(), reply)) {
    PublishRecord(*this, kInterfaceRecord, reply.Whole(), instance);
  } else {
    LogLevel3("No data retrieved for Network Interface Configuration Summary for Instance #",
              number);
  }
  LogLevel4("TStrakePluginCallbacks::NetworkInterface completed.");
}

void TStrakePluginCallbacks::IndividualDHCPValues(boost::shared_ptr<ICIMNamespace> /*cimNamespace*/,
                                                  boost::shared_ptr<ICIMInstance> instance,
                                                  unsigned char number, SPLibrary* spLib,
                                                  unsigned char sp) {
  LogLevel4("TStrakePluginCallbacks::IndividualDHCPValues entered.");
  static_assert(std::size(kDhcpValues) ==
                std::tuple_size_v<decltype(SharedIdentifiers::dhcpValues)>);
  const SpLink link = {*this, spLib, sp};
  NetworkReply reply;
  std::string text;
  auto identifier = Identifiers().dhcpValues.begin();
  for (const DhcpValue& value : kDhcpValues) {
    identifier->Address(number);
    if (link.Ask(identifier->Bytes(), reply)) {
      // The line shows the raw bytes as text, of an address too; the dotted
      // form goes only into the property.
      LogLevel3(value.name, " = ", reply.Received().Text());
      value.decode(reply.Received(), text);
      SetProperty(instance, value.name, text);
    } else {
      LogLevel3("No data retrieved for ", value.name, " Instance #", number);
    }
    ++identifier;
  }
  LogLevel4("TStrakePluginCallbacks::IndividualDHCPValues completed.");
}

}  // namespace strake
