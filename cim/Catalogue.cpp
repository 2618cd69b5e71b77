#include "cim/Catalogue.h"

#include <algorithm>
#include <array>

namespace strake::cim {
namespace {

using enum CimType;

constexpr bool kKey = true;

constexpr std::array kComputerSystem{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SPClock", DateTime},
};

constexpr std::array kIPProtocolEndpoint{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    // In lower case here, unlike in the dial classes.
    SchemaProperty{"instance", String},
    SchemaProperty{"Enabled", String},
    SchemaProperty{"HostName", String},
    SchemaProperty{"HostIPAddress", String},
    SchemaProperty{"DHCPEnabled", String},
    SchemaProperty{"GatewayIPAddress", String},
    SchemaProperty{"BurnedInMACAddress", String},
    SchemaProperty{"HostIPSubnetMask", String},
    SchemaProperty{"DHCPHostName", String},
    SchemaProperty{"DHCPAssignedIPAddress", String},
    SchemaProperty{"DHCPAssignedGatewayAddress", String},
    SchemaProperty{"DHCPAssignedSubnetMask", String},
    SchemaProperty{"DHCPDomainName", String},
    SchemaProperty{"DHCPServer", String},
    SchemaProperty{"DHCPPrimaryDNS", String},
    SchemaProperty{"DHCPSecondaryDNS", String},
    SchemaProperty{"DHCPTertiaryDNS", String},
};

constexpr std::array kIPProtocolEndpoint2{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    SchemaProperty{"SystemLocation", String},
    SchemaProperty{"SystemContact", String},
    SchemaProperty{"Traps", String},
    SchemaProperty{"SNMPv1", String},
    SchemaProperty{"SNMPv3", String},
    SchemaProperty{"DNS", String},
    SchemaProperty{"DNSIP1", String},
    SchemaProperty{"DNSIP2", String},
    SchemaProperty{"DNSIP3", String},
    SchemaProperty{"DNSHostName1", String},
    SchemaProperty{"DNSHostIP1", String},
    SchemaProperty{"DNSHostName2", String},
    SchemaProperty{"DNSHostIP2", String},
    SchemaProperty{"DNSHostName3", String},
    SchemaProperty{"DNSHostIP3", String},
    SchemaProperty{"DNSHostName4", String},
    SchemaProperty{"DNSHostIP4", String},
    SchemaProperty{"Community1Name", String},
    SchemaProperty{"Community1IP1", String},
    SchemaProperty{"Community1IP2", String},
    SchemaProperty{"Community1IP3", String},
    SchemaProperty{"Community2Name", String},
    SchemaProperty{"Community2IP1", String},
    SchemaProperty{"Community2IP2", String},
    SchemaProperty{"Community2IP3", String},
    SchemaProperty{"Community3Name", String},
    SchemaProperty{"Community3IP1", String},
    SchemaProperty{"Community3IP2", String},
    SchemaProperty{"Community3IP3", String},
};

constexpr std::array kDialOut{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    SchemaProperty{"Instance", String, kKey},
    SchemaProperty{"DialStatus", String},
    SchemaProperty{"PhoneNumberLAN", String},
    SchemaProperty{"TextDescription", String},
    SchemaProperty{"ConnectionType", String},
    SchemaProperty{"DialoutID", String},
    SchemaProperty{"DialoutPassword", String},
    SchemaProperty{"PagerPIN", String},
    SchemaProperty{"EmailAddress", String},
    SchemaProperty{"PPPLoginID", String},
    SchemaProperty{"PPPPassword", String},
    SchemaProperty{"SelectiveAlertNotification", String},
};

constexpr std::array kDialIn{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    SchemaProperty{"Instance", String, kKey},
    SchemaProperty{"LoginID", String},
    SchemaProperty{"LoginFlags", String},
    SchemaProperty{"DialBackNumber", String},
    SchemaProperty{"DenyAlways", String},
    SchemaProperty{"Supervisor", String},
    SchemaProperty{"ReadOnly", String},
    SchemaProperty{"NetworkingAndSecurity", String},
    SchemaProperty{"RemoteConsoleAccess", String},
    SchemaProperty{"RemoteConsoleVirtualMediaAccess", String},
    SchemaProperty{"RemoteServerPowerRestartAccess", String},
    SchemaProperty{"BasicConfiguration", String},
    SchemaProperty{"AbilityToClearEventLogs", String},
    SchemaProperty{"AdvancedConfiguration", String},
    SchemaProperty{"LastLogin", DateTime},
};

constexpr std::array kSerialPort{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    SchemaProperty{"Instance", String, kKey},
    SchemaProperty{"BaudRate", String},
    SchemaProperty{"Parity", String},
    SchemaProperty{"StopBits", String},
    SchemaProperty{"NullModem", String},
    SchemaProperty{"InitializationString", String},
    SchemaProperty{"PortEnabled", String},
    SchemaProperty{"ModemCallerIDString", String},
    SchemaProperty{"FactorySettingsString", String},
    SchemaProperty{"ModemEscapeGuardTime", String},
    SchemaProperty{"ModemEscapeString", String},
    SchemaProperty{"ModemPrefixString", String},
    SchemaProperty{"ModemPostfixString", String},
    SchemaProperty{"ModemAutoAnswerString", String},
    SchemaProperty{"ModemAutoAnswerStopString", String},
    SchemaProperty{"ModemQueryString", String},
    SchemaProperty{"ModemHangupString", String},
};

constexpr std::array kDialOutAlerts{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"Name", String, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    SchemaProperty{"Temperature", String},
    SchemaProperty{"Voltage", String},
    SchemaProperty{"Tamper", String},
    SchemaProperty{"MultipleFanFailure", String},
    SchemaProperty{"PowerFailure", String},
    SchemaProperty{"HardDrive", String},
    SchemaProperty{"VRMFailure", String},
};

constexpr std::array kNumericSensor{
    SchemaProperty{"CreationClassName", String, kKey},
    SchemaProperty{"SourceNode", Uint8, kKey},
    SchemaProperty{"SystemCreationClassName", String, kKey},
    SchemaProperty{"SystemName", String, kKey},
    SchemaProperty{"DeviceID", String, kKey},
    SchemaProperty{"SensorDescription", String},
    SchemaProperty{"CurrentReading", Sint32},
    SchemaProperty{"BaseUnits", Uint16},
    SchemaProperty{"UnitModifier", Sint32},
};

constexpr std::array kClasses{
    SchemaClass{"VELKSG_SP_ComputerSystem", kComputerSystem},
    SchemaClass{"VELKSG_ServProc_IPProtocolEndpoint", kIPProtocolEndpoint},
    SchemaClass{"VELKSG_ServProc_IPProtocolEndpoint2", kIPProtocolEndpoint2},
    SchemaClass{"VELKSG_ServProc_DialProtocolEndpoint1", kDialOut},
    SchemaClass{"VELKSG_ServProc_DialProtocolEndpoint2", kDialIn},
    SchemaClass{"VELKSG_ServProc_DialProtocolEndpoint3", kSerialPort},
    SchemaClass{"VELKSG_ServProc_DialProtocolEndpoint4", kDialOutAlerts},
    SchemaClass{"VELKSG_SP_NumericSensor", kNumericSensor},
};

}  // namespace

std::span<const SchemaClass> SchemaClasses() { return kClasses; }

const SchemaClass* FindSchemaClass(std::string_view name) {
  const auto* const found = std::ranges::find(kClasses, name, &SchemaClass::name);
  return found == kClasses.end() ? nullptr : found;
}

const SchemaProperty* FindSchemaProperty(const SchemaClass& schemaClass, std::string_view name) {
  const auto found = std::ranges::find(schemaClass.properties, name, &SchemaProperty::name);
  return found == schemaClass.properties.end() ? nullptr : &*found;
}

std::string_view CimTypeName(CimType type) {
  constexpr std::array<std::string_view, 5> kNames{"string", "sint32", "uint16", "uint8",
                                                   "datetime"};
  return kNames.at(static_cast<std::size_t>(type));
}

}  // namespace strake::cim
