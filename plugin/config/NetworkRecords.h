// The records of the network configuration, element by element.
#pragma once

#include "plugin/config/ElementRecord.h"
#include "plugin/spaccess/ByteView.h"
#include "plugin/spaccess/DotIdentifier.h"

namespace strake {

using NetworkReply = ReplyBuffer<256>;

inline constexpr CodeText kLineTypeCodes[] = {
    {1, "Ethernet"},
    {2, "Token Ring"},
    {3, "PPP"},
};
inline constexpr CodeText kDataRateCodes[] = {
    {1, "4M"}, {2, "16M"}, {3, "10M"}, {4, "100M"}, {5, "Auto"},
};
inline constexpr CodeText kDuplexCodes[] = {
    {1, "Full"},
    {2, "Half"},
    {3, "Auto"},
};
inline constexpr CodeText kDhcpCodes[] = {
    {0, "DHCP Disabled"},
    {1, "DHCP Enabled"},
    {2, "DHCP then try static IP configuration"},
};
inline constexpr CodeText kComPortCodes[] = {
    {1, "COM1"},
};
inline constexpr CodeText kPppAuthenticationCodes[] = {
    {1, "PAP Only"},
    {2, "CHAP Only"},
    {3, "Allow PAP"},
};

inline constexpr bool kOnlyLogged = false;

inline constexpr RecordField kInterfaceFields[] = {
    {"LineType", FieldForm::Plain, DecodeCode<kLineTypeCodes>, kOnlyLogged},
    {"Enabled", FieldForm::Plain, DecodeFlag<>},
    {"HostName", FieldForm::BoundedText, DecodeText},
    {"HostIPAddress", FieldForm::Plain, DecodeAddress},
    {"LANDataRate", FieldForm::Plain, DecodeCode<kDataRateCodes>, kOnlyLogged},
    {"Duplex", FieldForm::Plain, DecodeCode<kDuplexCodes>, kOnlyLogged},
    {"LocalAdminMACAddress", FieldForm::Plain, DecodeMacDecimal, kOnlyLogged},
    {"DHCPEnabled", FieldForm::Plain, DecodeCode<kDhcpCodes>},
    {"GatewayIPAddress", FieldForm::Plain, DecodeAddress},
    {"BurnedInMACAddress", FieldForm::Plain, DecodeMacHexadecimal},
    {"PPPModemCOMPort", FieldForm::Plain, DecodeCode<kComPortCodes>, kOnlyLogged},
    {"PPPRemoteIPAddress", FieldForm::Plain, DecodeAddress, kOnlyLogged},
    {"NetworkMTU", FieldForm::Plain, DecodeMtu, kOnlyLogged},
    {"HostIPSubnetMask", FieldForm::Plain, DecodeAddress},
    {"PPPAuthenticationProtocol", FieldForm::Plain, DecodeCode<kPppAuthenticationCodes>,
     kOnlyLogged},
};

// Host names are copied by L alone; M is only told. The lines on their lengths
// call them without the "DNS".
inline constexpr RecordField kDnsFields[] = {
    {"DNS", FieldForm::Plain, DecodeFlag<>},
    {"DNSIP1", FieldForm::Plain, DecodeAddress},
    {"DNSIP2", FieldForm::Plain, DecodeAddress},
    {"DNSIP3", FieldForm::Plain, DecodeAddress},
    {"DNSHostName1", FieldForm::String, DecodeText, true, "HostName1"},
    {"DNSHostIP1", FieldForm::Plain, DecodeAddress},
    {"DNSHostName2", FieldForm::String, DecodeText, true, "HostName2"},
    {"DNSHostIP2", FieldForm::Plain, DecodeAddress},
    {"DNSHostName3", FieldForm::String, DecodeText, true, "HostName3"},
    {"DNSHostIP3", FieldForm::Plain, DecodeAddress},
    {"DNSHostName4", FieldForm::String, DecodeText, true, "HostName4"},
    {"DNSHostIP4", FieldForm::Plain, DecodeAddress},
};

// Texts all of them, the addresses too.
inline constexpr RecordField kCommunityFields[] = {
    {"Community1Name", FieldForm::String, DecodeText},
    {"Community1IP1", FieldForm::String, DecodeText},
    {"Community1IP2", FieldForm::String, DecodeText},
    {"Community1IP3", FieldForm::String, DecodeText},
    {"Community2Name", FieldForm::String, DecodeText},
    {"Community2IP1", FieldForm::String, DecodeText},
    {"Community2IP2", FieldForm::String, DecodeText},
    {"Community2IP3", FieldForm::String, DecodeText},
    {"Community3Name", FieldForm::String, DecodeText},
    {"Community3IP1", FieldForm::String, DecodeText},
    {"Community3IP2", FieldForm::String, DecodeText},
    {"Community3IP3", FieldForm::String, DecodeText},
};

inline constexpr RecordLayout kInterfaceRecord = {.fields = kInterfaceFields};
inline constexpr RecordLayout kDnsRecord = {.fields = kDnsFields, .tellsVectorIds = false};
inline constexpr RecordLayout kCommunityRecord = {.fields = kCommunityFields};

// The summary of SNMP and DNS: values that are a whole reply of their own ...
struct SummaryValue {
  std::string_view name;
  DotIdentifier identifier;
  ValueDecoder decode = nullptr;
};

inline constexpr SummaryValue kSummaryValues[] = {
    {"SystemLocation", {4, 9, 3, 1, 2}, DecodeText},
    {"SystemContact", {4, 9, 3, 1, 1}, DecodeText},
    {"Traps", {4, 9, 3, 1, 3}, DecodeFlag<kEnabledWhenClear>},
    {"SNMPv1", {4, 9, 3, 1, 5}, DecodeFlag<>},
    {"SNMPv3", {4, 9, 3, 1, 6}, DecodeFlag<>},
};

// ... and records.
struct SummaryRecord {
  std::string_view name;
  DotIdentifier identifier;
  RecordLayout layout;
};

inline constexpr SummaryRecord kSummaryRecords[] = {
    {"DNS Configuration Summary", {4, 9, 3, 2, 255}, kDnsRecord},
    {"SNMP Configuration Summary", {4, 9, 3, 1, 4, 255}, kCommunityRecord},
};

// What the DHCP server assigned to an interface, a bare value a reply; in the
// order of the shared identifiers.
struct DhcpValue {
  std::string_view name;
  ValueDecoder decode;
};

inline constexpr DhcpValue kDhcpValues[] = {
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

}  // namespace strake
