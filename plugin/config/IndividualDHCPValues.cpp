// Reads what the DHCP server assigned to one network interface, one command a
// value. A reply is the bare value, no element record.
#include "plugin/config/NetworkReply.h"
#include "plugin/config/SharedIdentifiers.h"
#include "plugin/config/ValueDecoders.h"
#include "plugin/frame/TStrakePluginCallbacks.h"

#include <iterator>
#include <string_view>

namespace strake {
namespace {

struct DhcpValue {
  std::string_view name;
  ValueDecoder decode;
};

// In the order of the shared identifiers.
constexpr DhcpValue kDhcpValues[] = {
    {"DHCPHostName", DecodeText},
    {"DHCPAssignedIPAddress", DecodeAddress},
    {"DHCPAssignedGatewayAddress", DecodeAddress},
    {"DHCPAssignedSubnetMask", DecodeAddress},
    {"DHCPDomainName", DecodeText},
    {"DHCPServer", DecodeAddress},
    {"DHCPPrimaryDNS", DecodeAddress},
    {"DHCPSecondaryDNS", DecodeAddress},
    {"DHCPTertiaryDNS", DecodeAddress},
};

}  // namespace

void TStrakePluginCallbacks::IndividualDHCPValues(const ServiceProcessor& sp,
                                                  InstanceBuilder& instance, unsigned char number) {
  LogLevel4("TStrakePluginCallbacks::IndividualDHCPValues entered.");
  static_assert(std::size(kDhcpValues) ==
                std::tuple_size_v<decltype(SharedIdentifiers::dhcpValues)>);
  NetworkReply reply;
  std::string text;
  auto identifier = Identifiers().dhcpValues.begin();
  for (const DhcpValue& value : kDhcpValues) {
    identifier->Address(number);
    if (reply.Send(*this, sp, identifier->Bytes())) {
      // The line shows the raw bytes as text, of an address too; the dotted
      // form goes only into the property.
      LogLevel3(value.name, " = ", reply.Received().Text());
      value.decode(reply.Received(), text);
      instance.Set(value.name, text);
    } else {
      LogLevel3("No data retrieved for ", value.name, " Instance #", number);
    }
    ++identifier;
  }
  LogLevel4("TStrakePluginCallbacks::IndividualDHCPValues completed.");
}

}  // namespace strake
