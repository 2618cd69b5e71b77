// The fields of the seven records, once more and without the plug-in's tables.
#include "tests/support/PlainRecords.h"

#include <initializer_list>

namespace strake::tests {
namespace {

using Value = PlainBytes;

constexpr PlainForm kText = PlainForm::Text;
constexpr PlainForm kBounded = PlainForm::TextUpToMaximum;
constexpr PlainForm kData = PlainForm::Data;

// The texts of the codes from 0 on.
std::string Pick(const std::vector<std::string>& texts, std::size_t code) {
  return code < texts.size() ? texts[code] : "None";
}

int SignedByte(unsigned char byte) { return byte < 128 ? byte : byte - 256; }

std::string Pointed(const Value& v, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += std::to_string(v[i]);
    if (i + 1 < count) {
      text += ".";
    }
  }
  return text;
}

std::string Flag(const Value& v) { return v[0] != 0 ? "Enabled" : "Disabled"; }
std::string Address(const Value& v) { return Pointed(v, 4); }
std::string LocalMac(const Value& v) { return Pointed(v, 6); }

std::string BurnedInMac(const Value& v) {
  const std::string digits = "0123456789ABCDEF";
  std::string text;
  for (std::size_t i = 0; i < 6; ++i) {
    text += std::string(i == 0 ? "" : ":") + digits[v[i] / 16] + digits[v[i] % 16];
  }
  return text;
}

std::string LineType(const Value& v) {
  return Pick({"None", "Ethernet", "Token Ring", "PPP"}, v[0]);
}
std::string DataRate(const Value& v) {
  return Pick({"None", "4M", "16M", "10M", "100M", "Auto"}, v[0]);
}
std::string Duplex(const Value& v) { return Pick({"None", "Full", "Half", "Auto"}, v[0]); }
std::string Dhcp(const Value& v) {
  return Pick({"DHCP Disabled", "DHCP Enabled", "DHCP then try static IP configuration"}, v[0]);
}
std::string ComPort(const Value& v) { return Pick({"None", "COM1"}, v[0]); }
std::string Mtu(const Value& v) { return std::to_string(v[0]) + " bytes"; }
std::string PppAuthentication(const Value& v) {
  return Pick({"None", "PAP Only", "CHAP Only", "Allow PAP"}, v[0]);
}

std::string BaudRate(const Value& v) { return std::to_string((SignedByte(v[0]) + 1) * 2400); }
std::string Parity(const Value& v) {
  return Pick({"None", "Odd", "None", "Even", "None", "Mark", "None", "Space"}, v[0]);
}
std::string StopBits(const Value& v) { return Pick({"1", "2 or 1.5"}, v[0]); }
std::string NullModem(const Value& v) {
  return v[0] != 0 ? "Null Modem or Lap Link cable" : "Modem present";
}
std::string GuardTime(const Value& v) { return std::to_string(SignedByte(v[0])) + " msecs"; }
std::string DialStatus(const Value& v) {
  return Pick({"Invalid", "Valid but disabled", "Valid and enabled"}, v[0]);
}
std::string ConnectionType(const Value& v) {
  return Pick({"Numeric pager", "Alpha-numeric pager", "Modem", "LAN connection",
               "SNMP LAN alert to a SNMP Manager", "EMAIL LAN alert message to a EMAIL Server",
               "SNMP PPP alert to a SNMP Manager", "EMAIL PPP alert message to a EMAIL Server",
               "Ostrel alert over a LAN connection"},
              v[0]);
}
std::string SelectiveAlert(const Value& v) {
  return Pick({"Alert recipient receives enabled critical alerts only",
               "Alert recipient receives all enabled alerts"},
              v[0]);
}
std::string LoginFlags(const Value& v) {
  const std::vector<std::string> texts = {"Read/write permision. Dial back disabled",
                                          "Read only permission. Dial back disabled",
                                          "Read/write permision. ", "Read only permission. "};
  return texts[v[0] % 4];
}

std::vector<PlainField> Alike(std::initializer_list<const char*> names, PlainForm form,
                              std::string (*decode)(const Value&) = nullptr) {
  std::vector<PlainField> fields;
  for (const char* const name : names) {
    fields.push_back({name, form, decode});
  }
  return fields;
}

std::vector<PlainRecord> Tables() {
  return {
      {"serial port",
       "VELKSG_ServProc_DialProtocolEndpoint3",
       {{"BaudRate", kData, BaudRate},
        {"Parity", kData, Parity},
        {"StopBits", kData, StopBits},
        {"NullModem", kData, NullModem},
        {"InitializationString", kBounded, nullptr},
        {"PortEnabled", kData, Flag},
        {"ModemCallerIDString", kBounded, nullptr},
        {"FactorySettingsString", kBounded, nullptr},
        {"ModemEscapeGuardTime", kData, GuardTime},
        {"ModemEscapeString", kBounded, nullptr},
        {"ModemPrefixString", kBounded, nullptr},
        {"ModemPostfixString", kBounded, nullptr},
        {"ModemAutoAnswerString", kBounded, nullptr},
        {"ModemAutoAnswerStopString", kBounded, nullptr},
        {"ModemQueryString", kBounded, nullptr},
        {"ModemHangupString", kBounded, nullptr}}},
      {"dial-out settings",
       "VELKSG_ServProc_DialProtocolEndpoint1",
       {{"DialStatus", kData, DialStatus},
        {"PhoneNumberLAN", kBounded, nullptr},
        {"TextDescription", kBounded, nullptr},
        {"ConnectionType", kData, ConnectionType},
        {"DialoutID", kBounded, nullptr},
        {"DialoutPassword", kBounded, nullptr},
        {"PagerPIN", kBounded, nullptr},
        {"EmailAddress", kBounded, nullptr},
        {"PPPLoginID", kBounded, nullptr},
        {"PPPPassword", kBounded, nullptr},
        {"SelectiveAlertNotification", kData, SelectiveAlert}}},
      {"dial-in login",
       "VELKSG_ServProc_DialProtocolEndpoint2",
       {{"LoginID", kBounded, nullptr},
        {"LoginFlags", kData, LoginFlags},
        {"DialBackNumber", kBounded, nullptr}}},
      {"dial-out alerts", "VELKSG_ServProc_DialProtocolEndpoint4",
       Alike({"Temperature", "Voltage", "Tamper", "MultipleFanFailure", "PowerFailure", "HardDrive",
              "VRMFailure"},
             kData, Flag),
       true, true},
      {"network interface",
       "VELKSG_ServProc_IPProtocolEndpoint",
       {{"LineType", kData, LineType, false},
        {"Enabled", kData, Flag},
        {"HostName", kBounded, nullptr},
        {"HostIPAddress", kData, Address},
        {"LANDataRate", kData, DataRate, false},
        {"Duplex", kData, Duplex, false},
        {"LocalAdminMACAddress", kData, LocalMac, false},
        {"DHCPEnabled", kData, Dhcp},
        {"GatewayIPAddress", kData, Address},
        {"BurnedInMACAddress", kData, BurnedInMac},
        {"PPPModemCOMPort", kData, ComPort, false},
        {"PPPRemoteIPAddress", kData, Address, false},
        {"NetworkMTU", kData, Mtu, false},
        {"HostIPSubnetMask", kData, Address},
        {"PPPAuthenticationProtocol", kData, PppAuthentication, false}}},
      {"DNS summary",
       "VELKSG_ServProc_IPProtocolEndpoint2",
       {{"DNS", kData, Flag},
        {"DNSIP1", kData, Address},
        {"DNSIP2", kData, Address},
        {"DNSIP3", kData, Address},
        {"DNSHostName1", kText, nullptr, true, "HostName1"},
        {"DNSHostIP1", kData, Address},
        {"DNSHostName2", kText, nullptr, true, "HostName2"},
        {"DNSHostIP2", kData, Address},
        {"DNSHostName3", kText, nullptr, true, "HostName3"},
        {"DNSHostIP3", kData, Address},
        {"DNSHostName4", kText, nullptr, true, "HostName4"},
        {"DNSHostIP4", kData, Address}},
       false},
      {"SNMP communities", "VELKSG_ServProc_IPProtocolEndpoint2",
       Alike({"Community1Name", "Community1IP1", "Community1IP2", "Community1IP3", "Community2Name",
              "Community2IP1", "Community2IP2", "Community2IP3", "Community3Name", "Community3IP1",
              "Community3IP2", "Community3IP3"},
             kText)},
  };
}

}  // namespace

const std::vector<PlainRecord>& PlainRecords() {
  static const std::vector<PlainRecord> kTables = Tables();
  return kTables;
}

}  // namespace strake::tests
