#include "tests/plugin/config/DialTables.h"

#include <array>
#include <cstddef>
#include <map>

namespace strake::tests {
namespace {

// By the byte's value.
constexpr std::array<int, 256> kBauds = {{
    2400,    4800,    7200,    9600,    12000,   14400,   16800,   19200,   21600,   24000,
    26400,   28800,   31200,   33600,   36000,   38400,   40800,   43200,   45600,   48000,
    50400,   52800,   55200,   57600,   60000,   62400,   64800,   67200,   69600,   72000,
    74400,   76800,   79200,   81600,   84000,   86400,   88800,   91200,   93600,   96000,
    98400,   100800,  103200,  105600,  108000,  110400,  112800,  115200,  117600,  120000,
    122400,  124800,  127200,  129600,  132000,  134400,  136800,  139200,  141600,  144000,
    146400,  148800,  151200,  153600,  156000,  158400,  160800,  163200,  165600,  168000,
    170400,  172800,  175200,  177600,  180000,  182400,  184800,  187200,  189600,  192000,
    194400,  196800,  199200,  201600,  204000,  206400,  208800,  211200,  213600,  216000,
    218400,  220800,  223200,  225600,  228000,  230400,  232800,  235200,  237600,  240000,
    242400,  244800,  247200,  249600,  252000,  254400,  256800,  259200,  261600,  264000,
    266400,  268800,  271200,  273600,  276000,  278400,  280800,  283200,  285600,  288000,
    290400,  292800,  295200,  297600,  300000,  302400,  304800,  307200,  -304800, -302400,
    -300000, -297600, -295200, -292800, -290400, -288000, -285600, -283200, -280800, -278400,
    -276000, -273600, -271200, -268800, -266400, -264000, -261600, -259200, -256800, -254400,
    -252000, -249600, -247200, -244800, -242400, -240000, -237600, -235200, -232800, -230400,
    -228000, -225600, -223200, -220800, -218400, -216000, -213600, -211200, -208800, -206400,
    -204000, -201600, -199200, -196800, -194400, -192000, -189600, -187200, -184800, -182400,
    -180000, -177600, -175200, -172800, -170400, -168000, -165600, -163200, -160800, -158400,
    -156000, -153600, -151200, -148800, -146400, -144000, -141600, -139200, -136800, -134400,
    -132000, -129600, -127200, -124800, -122400, -120000, -117600, -115200, -112800, -110400,
    -108000, -105600, -103200, -100800, -98400,  -96000,  -93600,  -91200,  -88800,  -86400,
    -84000,  -81600,  -79200,  -76800,  -74400,  -72000,  -69600,  -67200,  -64800,  -62400,
    -60000,  -57600,  -55200,  -52800,  -50400,  -48000,  -45600,  -43200,  -40800,  -38400,
    -36000,  -33600,  -31200,  -28800,  -26400,  -24000,  -21600,  -19200,  -16800,  -14400,
    -12000,  -9600,   -7200,   -4800,   -2400,   0,
}};
constexpr std::array<int, 256> kGuardTimes = {{
    0,    1,    2,    3,    4,    5,    6,    7,    8,    9,    10,   11,   12,   13,   14,   15,
    16,   17,   18,   19,   20,   21,   22,   23,   24,   25,   26,   27,   28,   29,   30,   31,
    32,   33,   34,   35,   36,   37,   38,   39,   40,   41,   42,   43,   44,   45,   46,   47,
    48,   49,   50,   51,   52,   53,   54,   55,   56,   57,   58,   59,   60,   61,   62,   63,
    64,   65,   66,   67,   68,   69,   70,   71,   72,   73,   74,   75,   76,   77,   78,   79,
    80,   81,   82,   83,   84,   85,   86,   87,   88,   89,   90,   91,   92,   93,   94,   95,
    96,   97,   98,   99,   100,  101,  102,  103,  104,  105,  106,  107,  108,  109,  110,  111,
    112,  113,  114,  115,  116,  117,  118,  119,  120,  121,  122,  123,  124,  125,  126,  127,
    -128, -127, -126, -125, -124, -123, -122, -121, -120, -119, -118, -117, -116, -115, -114, -113,
    -112, -111, -110, -109, -108, -107, -106, -105, -104, -103, -102, -101, -100, -99,  -98,  -97,
    -96,  -95,  -94,  -93,  -92,  -91,  -90,  -89,  -88,  -87,  -86,  -85,  -84,  -83,  -82,  -81,
    -80,  -79,  -78,  -77,  -76,  -75,  -74,  -73,  -72,  -71,  -70,  -69,  -68,  -67,  -66,  -65,
    -64,  -63,  -62,  -61,  -60,  -59,  -58,  -57,  -56,  -55,  -54,  -53,  -52,  -51,  -50,  -49,
    -48,  -47,  -46,  -45,  -44,  -43,  -42,  -41,  -40,  -39,  -38,  -37,  -36,  -35,  -34,  -33,
    -32,  -31,  -30,  -29,  -28,  -27,  -26,  -25,  -24,  -23,  -22,  -21,  -20,  -19,  -18,  -17,
    -16,  -15,  -14,  -13,  -12,  -11,  -10,  -9,   -8,   -7,   -6,   -5,   -4,   -3,   -2,   -1,
}};

using Codes = std::map<int, std::string>;

std::string TextOf(const Codes& codes, int byte) {
  const auto code = codes.find(byte);
  return code == codes.end() ? "None" : code->second;
}

std::string Baud(int byte) { return std::to_string(kBauds.at(static_cast<std::size_t>(byte))); }

std::string GuardTime(int byte) {
  return std::to_string(kGuardTimes.at(static_cast<std::size_t>(byte))) + " msecs";
}

std::string Parity(int byte) {
  return TextOf({{1, "Odd"}, {3, "Even"}, {5, "Mark"}, {7, "Space"}}, byte);
}

std::string StopBits(int byte) { return TextOf({{0, "1"}, {1, "2 or 1.5"}}, byte); }

std::string NullModem(int byte) {
  return byte == 0 ? "Modem present" : "Null Modem or Lap Link cable";
}

std::string Enabled(int byte) { return byte == 0 ? "Disabled" : "Enabled"; }

std::string DialStatus(int byte) {
  return TextOf({{0, "Invalid"}, {1, "Valid but disabled"}, {2, "Valid and enabled"}}, byte);
}

std::string ConnectionType(int byte) {
  return TextOf({{0, "Numeric pager"},
                 {1, "Alpha-numeric pager"},
                 {2, "Modem"},
                 {3, "LAN connection"},
                 {4, "SNMP LAN alert to a SNMP Manager"},
                 {5, "EMAIL LAN alert message to a EMAIL Server"},
                 {6, "SNMP PPP alert to a SNMP Manager"},
                 {7, "EMAIL PPP alert message to a EMAIL Server"},
                 {8, "Ostrel alert over a LAN connection"}},
                byte);
}

std::string SelectiveAlert(int byte) {
  return TextOf({{0, "Alert recipient receives enabled critical alerts only"},
                 {1, "Alert recipient receives all enabled alerts"}},
                byte);
}

// By the two low bits; the other six mean nothing.
std::string LoginFlags(int byte) {
  static constexpr std::array<const char*, 4> kTexts = {
      "Read/write permision. Dial back disabled",
      "Read only permission. Dial back disabled",
      "Read/write permision. ",
      "Read only permission. ",
  };
  return kTexts.at(static_cast<std::size_t>(byte % 4));
}

}  // namespace

std::span<const DialField> SerialPortMeanings() {
  static constexpr DialField kFields[] = {
      {"BaudRate", Baud},
      {"Parity", Parity},
      {"StopBits", StopBits},
      {"NullModem", NullModem},
      {"InitializationString", nullptr},
      {"PortEnabled", Enabled},
      {"ModemCallerIDString", nullptr},
      {"FactorySettingsString", nullptr},
      {"ModemEscapeGuardTime", GuardTime},
      {"ModemEscapeString", nullptr},
      {"ModemPrefixString", nullptr},
      {"ModemPostfixString", nullptr},
      {"ModemAutoAnswerString", nullptr},
      {"ModemAutoAnswerStopString", nullptr},
      {"ModemQueryString", nullptr},
      {"ModemHangupString", nullptr},
  };
  return kFields;
}

std::span<const DialField> DialoutMeanings() {
  static constexpr DialField kFields[] = {
      {"DialStatus", DialStatus},
      {"PhoneNumberLAN", nullptr},
      {"TextDescription", nullptr},
      {"ConnectionType", ConnectionType},
      {"DialoutID", nullptr},
      {"DialoutPassword", nullptr},
      {"PagerPIN", nullptr},
      {"EmailAddress", nullptr},
      {"PPPLoginID", nullptr},
      {"PPPPassword", nullptr},
      {"SelectiveAlertNotification", SelectiveAlert},
  };
  return kFields;
}

std::span<const DialField> DialinMeanings() {
  static constexpr DialField kFields[] = {
      {"LoginID", nullptr},
      {"LoginFlags", LoginFlags},
      {"DialBackNumber", nullptr},
  };
  return kFields;
}

std::span<const DialField> AlertMeanings() {
  static constexpr DialField kFields[] = {
      {"Temperature", Enabled},        {"Voltage", Enabled},      {"Tamper", Enabled},
      {"MultipleFanFailure", Enabled}, {"PowerFailure", Enabled}, {"HardDrive", Enabled},
      {"VRMFailure", Enabled},
  };
  return kFields;
}

}  // namespace strake::tests
