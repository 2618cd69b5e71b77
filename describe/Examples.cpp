#include "describe/Examples.h"

#include "text/DotNotation.h"
#include "text/HexBytes.h"

#include <algorithm>
#include <iterator>

namespace strake::describe {
namespace {

constexpr Example kExamples[] = {
    {"presence test", "01"},
    {"SP clock", "18 01 01 00 00 00 00"},  // 2024-01-01 00:00:00
    {"SP time zone", "00 00"},
    {"SystemLocation", "Room 1, rack 1"},
    {"SystemContact", "Operator"},

    {"LineType", "01"},
    {"Enabled", "01"},
    {"HostName", "sp-1"},
    {"HostIPAddress", "192.0.2.1"},
    {"LANDataRate", "05"},
    {"Duplex", "03"},
    {"LocalAdminMACAddress", "00 00 00 00 00 00"},
    {"GatewayIPAddress", "192.0.2.254"},
    {"BurnedInMACAddress", "00 00 5E 00 53 01"},
    {"NetworkMTU", "DC 05"},
    {"HostIPSubnetMask", "255.255.255.0"},
    {"DHCPHostName", "sp-1"},
    {"DHCPAssignedIPAddress", "192.0.2.1"},
    {"DHCPAssignedGatewayAddress", "192.0.2.254"},
    {"DHCPAssignedSubnetMask", "255.255.255.0"},
    {"DHCPDomainName", "example.com"},

    {"BaudRate", "03"},  // 9600
    {"PortEnabled", "01"},
    {"InitializationString", "ATZ"},
    {"ModemCallerIDString", "AT#CID=1"},
    {"FactorySettingsString", "AT&F0"},
    {"ModemEscapeGuardTime", "64"},  // 100 msecs
    {"ModemEscapeString", "+++"},
    {"ModemPrefixString", "ATDT"},
    {"ModemPostfixString", "^M"},
    {"ModemAutoAnswerString", "ATS0=1"},
    {"ModemAutoAnswerStopString", "ATS0=0"},
    {"ModemQueryString", "ATI"},
    {"ModemHangupString", "ATH0"},

    {"DialStatus", "02"},
    {"PhoneNumberLAN", "192.0.2.2"},
    {"TextDescription", "Recipient 1"},
    {"ConnectionType", "05"},  // EMAIL LAN alert message
    {"DialoutID", "sp-1"},
    {"EmailAddress", "operator@example.com"},
    {"LoginID", "USER1"},
    {"dial-in authority levels", "02 00"},           // Supervisor
    {"dial-in last login", "18 01 01 00 00 00 00"},  // as the SP clock
};

std::string_view FindExample(std::string_view name) {
  const auto* const found = std::ranges::find(kExamples, name, &Example::name);
  return found == std::end(kExamples) ? std::string_view() : found->value;
}

}  // namespace

std::span<const Example> Examples() { return kExamples; }

std::string ExampleValue(std::string_view name, ValueDecoder decode) {
  const std::string_view value = FindExample(name);
  if (decode == &DecodeText) {
    return std::string(value);
  }
  if (decode == DecodeAddress) {
    return text::ParseDotNotation(value).value_or(std::string(4, '\0'));
  }
  return value.empty() ? std::string(1, '\0') : text::ParseHexBytes(value).value();
}

}  // namespace strake::describe
