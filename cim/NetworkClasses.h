// The catalogue's rows of the network classes.
#pragma once

#include "cim/IdentityProperties.h"

namespace strake::cim {

constexpr SchemaProperty AtMostAsLongAs(std::string_view longest, SchemaProperty property) {
  property.maximumLength = longest.size();
  return property;
}

// Of four bytes in decimal; the addresses of communities are texts that anybody
// may have written.
constexpr SchemaProperty Address(std::string_view name, std::string_view label,
                                 std::string_view description) {
  return AtMostAsLongAs("255.255.255.255", {name, label, description});
}

inline constexpr SchemaProperty kIPProtocolEndpoint[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    kSystemCreationClassName,
    kSystemName,
    // In lower case here, unlike in the dial classes.
    {"instance", "Interface", "The number of the network interface, 1 or 2."},
    {"Enabled", "State", "Whether the interface is in use: Enabled or Disabled."},
    {"HostName", "Host name", "The host name of the interface."},
    Address("HostIPAddress", "Address", "The configured IP address of the interface."),
    {"DHCPEnabled", "Addressing",
     "How the interface gets its addresses: DHCP Enabled, DHCP Disabled or DHCP then try static "
     "IP configuration."},
    Address("GatewayIPAddress", "Gateway", "The configured IP address of the gateway."),
    AtMostAsLongAs("00:00:00:00:00:00",
                   {"BurnedInMACAddress", "MAC",
                    "The MAC address of the adapter as it was made, in hexadecimal with colons."}),
    Address("HostIPSubnetMask", "Subnet mask", "The configured subnet mask of the interface."),
    {"DHCPHostName", "DHCP host name", "The host name that the DHCP server assigned."},
    Address("DHCPAssignedIPAddress", "DHCP address",
            "The IP address that the DHCP server assigned."),
    Address("DHCPAssignedGatewayAddress", "DHCP gateway",
            "The IP address of the gateway that the DHCP server assigned."),
    Address("DHCPAssignedSubnetMask", "DHCP subnet mask",
            "The subnet mask that the DHCP server assigned."),
    {"DHCPDomainName", "DHCP domain", "The domain name that the DHCP server assigned."},
    Address("DHCPServer", "DHCP server", "The IP address of the DHCP server."),
    Address("DHCPPrimaryDNS", "DHCP primary DNS",
            "The IP address of the first DNS server that the DHCP server assigned."),
    Address("DHCPSecondaryDNS", "DHCP secondary DNS",
            "The IP address of the second DNS server that the DHCP server assigned."),
    Address("DHCPTertiaryDNS", "DHCP tertiary DNS",
            "The IP address of the third DNS server that the DHCP server assigned."),
};

inline constexpr SchemaProperty kIPProtocolEndpoint2[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    kSystemCreationClassName,
    kSystemName,
    {"SystemLocation", "Location", "Where the system stands, as SNMP tells it."},
    {"SystemContact", "Contact", "Who answers for the system, as SNMP tells it."},
    {"Traps", "SNMP traps", "Whether SNMP traps are sent: Enabled or Disabled."},
    {"SNMPv1", "SNMPv1", "Whether the SNMPv1 agent answers: Enabled or Disabled."},
    {"SNMPv3", "SNMPv3", "Whether the SNMPv3 agent answers: Enabled or Disabled."},
    {"DNS", "DNS", "Whether names are looked up by DNS: Enabled or Disabled."},
    Address("DNSIP1", "DNS server 1", "The IP address of the first DNS server."),
    Address("DNSIP2", "DNS server 2", "The IP address of the second DNS server."),
    Address("DNSIP3", "DNS server 3", "The IP address of the third DNS server."),
    {"DNSHostName1", "DNS host 1", "The name of the first entry of the host table."},
    Address("DNSHostIP1", "DNS host 1 address",
            "The IP address of the first entry of the host table."),
    {"DNSHostName2", "DNS host 2", "The name of the second entry of the host table."},
    Address("DNSHostIP2", "DNS host 2 address",
            "The IP address of the second entry of the host table."),
    {"DNSHostName3", "DNS host 3", "The name of the third entry of the host table."},
    Address("DNSHostIP3", "DNS host 3 address",
            "The IP address of the third entry of the host table."),
    {"DNSHostName4", "DNS host 4", "The name of the fourth entry of the host table."},
    Address("DNSHostIP4", "DNS host 4 address",
            "The IP address of the fourth entry of the host table."),
    {"Community1Name", "Community 1", "The name of the first SNMP community.", CimType::String,
     Role::Secret},
    {"Community1IP1", "Community 1 address 1", "The first IP address of the first community."},
    {"Community1IP2", "Community 1 address 2", "The second IP address of the first community."},
    {"Community1IP3", "Community 1 address 3", "The third IP address of the first community."},
    {"Community2Name", "Community 2", "The name of the second SNMP community.", CimType::String,
     Role::Secret},
    {"Community2IP1", "Community 2 address 1", "The first IP address of the second community."},
    {"Community2IP2", "Community 2 address 2", "The second IP address of the second community."},
    {"Community2IP3", "Community 2 address 3", "The third IP address of the second community."},
    {"Community3Name", "Community 3", "The name of the third SNMP community.", CimType::String,
     Role::Secret},
    {"Community3IP1", "Community 3 address 1", "The first IP address of the third community."},
    {"Community3IP2", "Community 3 address 2", "The second IP address of the third community."},
    {"Community3IP3", "Community 3 address 3", "The third IP address of the third community."},
};

}  // namespace strake::cim
