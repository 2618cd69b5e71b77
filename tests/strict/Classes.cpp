#include "tests/strict/Classes.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>

namespace strake::strict {
namespace {

using Properties = std::vector<std::pair<std::string, Made>>;
using Names = std::vector<std::string>;

constexpr Made kText = Made::FromText;

const Properties kDialIdentity = {{"CreationClassName", Made::FromCString},
                                  {"SourceNode", Made::FromByte},
                                  {"Name", kText},
                                  {"SystemCreationClassName", kText},
                                  {"SystemName", kText}};
const Properties kDialinIdentity = {{"CreationClassName", Made::FromCString},
                                    {"Name", kText},
                                    {"SourceNode", Made::FromByte},
                                    {"SystemCreationClassName", kText},
                                    {"SystemName", kText}};
const Properties kInterfaceIdentity = {{"CreationClassName", Made::FromCString},
                                       {"Name", kText},
                                       {"SystemCreationClassName", kText},
                                       {"SystemName", kText},
                                       {"SourceNode", Made::FromByte}};

Properties With(Properties properties, const Names& texts) {
  for (const std::string& name : texts) properties.emplace_back(name, kText);
  return properties;
}

Properties And(Properties properties, const std::string& name, Made made) {
  properties.emplace_back(name, made);
  return properties;
}

Names SensorIdentifiers() {
  Names identifiers;
  for (const int i : {1, 2, 3, 4, 5, 6, 7, 8, 13, 19, 20}) {
    identifiers.push_back("2.2.1." + std::to_string(i));
  }
  for (const char* const more :
       {"2.2.3.1", "2.2.3.2", "2.1.1.1", "2.1.1.2", "2.1.1.3", "2.1.1.4", "2.1.1.5", "2.1.1.6",
        "2.1.2.1", "2.1.2.2", "2.1.2.3", "2.1.2.4", "2.1.5.1", "2.1.4.1", "2.1.4.2"}) {
    identifiers.emplace_back(more);
  }
  for (int fan = 1; fan <= 16; ++fan) identifiers.push_back("2.3." + std::to_string(fan));
  return identifiers;
}

Names InterfaceIdentifiers() {
  Names identifiers;
  for (const std::string number : {"1", "2"}) {
    identifiers.push_back("4.9.1." + number + ".255");
    for (int value = 1; value <= 9; ++value) {
      identifiers.push_back("4.9.1." + number + ".16." + std::to_string(value));
    }
  }
  return identifiers;
}

const Properties kSensorProperties = {{"CreationClassName", Made::FromCString},
                                      {"SourceNode", Made::FromByte},
                                      {"SystemCreationClassName", kText},
                                      {"SystemName", kText},
                                      {"DeviceID", kText},
                                      {"SensorDescription", kText},
                                      {"CurrentReading", Made::FromInt},
                                      {"BaseUnits", Made::FromShort},
                                      {"UnitModifier", Made::FromInt}};

std::vector<ClassCase> MakeCases() {
  return {
      {"ComputerSystem",
       kComputerSystem,
       false,
       2,
       {{"CreationClassName", Made::FromCString},
        {"SourceNode", Made::FromByte},
        {"Name", kText},
        {"SPClock", Made::FromDateTime}},
       {"4.4.1", "4.4.2"}},
      {"IPEndpoint", kIPEndpoint, false, 4,
       With(kInterfaceIdentity,
            {"instance", "Enabled", "HostName", "HostIPAddress", "DHCPEnabled", "GatewayIPAddress",
             "BurnedInMACAddress", "HostIPSubnetMask", "DHCPHostName", "DHCPAssignedIPAddress",
             "DHCPAssignedGatewayAddress", "DHCPAssignedSubnetMask", "DHCPDomainName", "DHCPServer",
             "DHCPPrimaryDNS", "DHCPSecondaryDNS", "DHCPTertiaryDNS"}),
       InterfaceIdentifiers()},
      {"IPEndpoint2",
       kIPEndpoint2,
       false,
       2,
       With(kDialIdentity, {"SystemLocation", "SystemContact",  "Traps",
                            "SNMPv1",         "SNMPv3",         "DNS",
                            "DNSIP1",         "DNSIP2",         "DNSIP3",
                            "DNSHostName1",   "DNSHostIP1",     "DNSHostName2",
                            "DNSHostIP2",     "DNSHostName3",   "DNSHostIP3",
                            "DNSHostName4",   "DNSHostIP4",     "Community1Name",
                            "Community1IP1",  "Community1IP2",  "Community1IP3",
                            "Community2Name", "Community2IP1",  "Community2IP2",
                            "Community2IP3",  "Community3Name", "Community3IP1",
                            "Community3IP2",  "Community3IP3"}),
       {"4.9.3.1.2", "4.9.3.1.1", "4.9.3.1.3", "4.9.3.1.5", "4.9.3.1.6", "4.9.3.2.255",
        "4.9.3.1.4.255"}},
      {"Dialout",
       kDialout,
       false,
       4,
       With(kDialIdentity,
            {"Instance", "DialStatus", "PhoneNumberLAN", "TextDescription", "ConnectionType",
             "DialoutID", "DialoutPassword", "PagerPIN", "EmailAddress", "PPPLoginID",
             "PPPPassword", "SelectiveAlertNotification"}),
       {"4.1.3.1.255", "4.1.3.2.255"}},
      {"Dialin",
       kDialin,
       false,
       4,
       And(With(kDialinIdentity,
                {"Instance", "LoginID", "LoginFlags", "DialBackNumber", "DenyAlways", "Supervisor",
                 "ReadOnly", "NetworkingAndSecurity", "RemoteConsoleAccess",
                 "RemoteConsoleVirtualMediaAccess", "RemoteServerPowerRestartAccess",
                 "BasicConfiguration", "AbilityToClearEventLogs", "AdvancedConfiguration"}),
           "LastLogin", Made::FromDateTime),
       {"4.1.4.1.255", "4.1.4.1.9", "4.4.2", "4.1.4.1.3", "4.1.4.2.255", "4.1.4.2.9", "4.4.2",
        "4.1.4.2.3"}},
      {"SerialPort",
       kSerialPort,
       false,
       4,
       With(kDialIdentity, {"Instance", "BaudRate", "Parity", "StopBits", "NullModem",
                            "InitializationString", "PortEnabled", "ModemCallerIDString",
                            "FactorySettingsString", "ModemEscapeGuardTime", "ModemEscapeString",
                            "ModemPrefixString", "ModemPostfixString", "ModemAutoAnswerString",
                            "ModemAutoAnswerStopString", "ModemQueryString", "ModemHangupString"}),
       {"4.1.2.1.255", "4.1.2.2.255"}},
      {"Alerts",
       kAlerts,
       false,
       2,
       With(kDialIdentity, {"Temperature", "Voltage", "Tamper", "MultipleFanFailure",
                            "PowerFailure", "HardDrive", "VRMFailure"}),
       {"4.2.1.1"}},
      {"OrloSensor", kSensor, false, 84, kSensorProperties, SensorIdentifiers()},
      {"TavitSensor", kSensor, true, 19, kSensorProperties, {}},
  };
}

}  // namespace

const std::vector<ClassCase>& AllClasses() {
  static const auto& cases = *new std::vector<ClassCase>(MakeCases());
  return cases;
}

const ClassCase& CaseOf(const std::string& name) {
  const auto found =
      std::ranges::find_if(AllClasses(), [&](const ClassCase& each) { return each.name == name; });
  if (found == AllClasses().end()) throw std::invalid_argument(name);
  return *found;
}

std::string NameOf(const testing::TestParamInfo<ClassCase>& info) { return info.param.name; }

void PrintTo(const ClassCase& classCase, std::ostream* stream) { *stream << classCase.name; }

void Prepare(StrictHost& host, const ClassCase& classCase) {
  host.otherReply.bytes = {9, 3, 1, 0, 14, 5, 9};
  host.counts = {{"4.1.3", 2}, {"4.1.4", 2}, {"4.9.1", 2}};
  host.spCount = kSPs;
  if (!classCase.isTavit) return;
  host.isDotcommand = false;
  host.isKestle = true;
  host.machineType = "5120-XY";
  host.replies["166"].bytes = {18, 0, 0, 0, 4, 176};
  host.replies["162"].bytes = {22, 0, 60, 8, 8, 0, 15, 160};
  host.replies["164"].bytes = {10, 0, 0, 0, 0, 0, 25};
}

}  // namespace strake::strict
