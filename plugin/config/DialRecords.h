// The records of the serial and dial configuration, element by element.
#pragma once

#include "plugin/config/ElementRecord.h"
#include "plugin/spaccess/ByteView.h"

namespace strake {

// Dial replies are read into more bytes than an element can begin in.
using DialReply = ReplyBuffer<350>;

inline constexpr CodeText kParityCodes[] = {
    {1, "Odd"},
    {3, "Even"},
    {5, "Mark"},
    {7, "Space"},
};
inline constexpr CodeText kStopBitsCodes[] = {
    {0, "1"},
    {1, "2 or 1.5"},
};
inline constexpr FlagTexts kNullModemTexts = {
    .zero = "Modem present",
    .other = "Null Modem or Lap Link cable",
};

inline constexpr RecordField kSerialPortFields[] = {
    {"BaudRate", FieldForm::Plain, DecodeBaudRate},
    {"Parity", FieldForm::Plain, DecodeCode<kParityCodes>},
    {"StopBits", FieldForm::Plain, DecodeCode<kStopBitsCodes>},
    {"NullModem", FieldForm::Plain, DecodeFlag<kNullModemTexts>},
    {"InitializationString", FieldForm::BoundedText, DecodeText},
    {"PortEnabled", FieldForm::Plain, DecodeFlag<>},
    {"ModemCallerIDString", FieldForm::BoundedText, DecodeText},
    {"FactorySettingsString", FieldForm::BoundedText, DecodeText},
    {"ModemEscapeGuardTime", FieldForm::Plain, DecodeGuardTime},
    {"ModemEscapeString", FieldForm::BoundedText, DecodeText},
    {"ModemPrefixString", FieldForm::BoundedText, DecodeText},
    {"ModemPostfixString", FieldForm::BoundedText, DecodeText},
    {"ModemAutoAnswerString", FieldForm::BoundedText, DecodeText},
    {"ModemAutoAnswerStopString", FieldForm::BoundedText, DecodeText},
    {"ModemQueryString", FieldForm::BoundedText, DecodeText},
    {"ModemHangupString", FieldForm::BoundedText, DecodeText},
};

inline constexpr CodeText kDialStatusCodes[] = {
    {0, "Invalid"},
    {1, "Valid but disabled"},
    {2, "Valid and enabled"},
};
inline constexpr CodeText kConnectionTypeCodes[] = {
    {0, "Numeric pager"},
    {1, "Alpha-numeric pager"},
    {2, "Modem"},
    {3, "LAN connection"},
    {4, "SNMP LAN alert to a SNMP Manager"},
    {5, "EMAIL LAN alert message to a EMAIL Server"},
    {6, "SNMP PPP alert to a SNMP Manager"},
    {7, "EMAIL PPP alert message to a EMAIL Server"},
    {8, "Ostrel alert over a LAN connection"},
};
inline constexpr CodeText kSelectiveAlertCodes[] = {
    {0, "Alert recipient receives enabled critical alerts only"},
    {1, "Alert recipient receives all enabled alerts"},
};

// Passwords and PINs are published as the SP returns them.
inline constexpr RecordField kDialoutFields[] = {
    {"DialStatus", FieldForm::Plain, DecodeCode<kDialStatusCodes>},
    {"PhoneNumberLAN", FieldForm::BoundedText, DecodeText},
    {"TextDescription", FieldForm::BoundedText, DecodeText},
    {"ConnectionType", FieldForm::Plain, DecodeCode<kConnectionTypeCodes>},
    {"DialoutID", FieldForm::BoundedText, DecodeText},
    {"DialoutPassword", FieldForm::BoundedText, DecodeText},
    {"PagerPIN", FieldForm::BoundedText, DecodeText},
    {"EmailAddress", FieldForm::BoundedText, DecodeText},
    {"PPPLoginID", FieldForm::BoundedText, DecodeText},
    {"PPPPassword", FieldForm::BoundedText, DecodeText},
    {"SelectiveAlertNotification", FieldForm::Plain, DecodeCode<kSelectiveAlertCodes>},
};

inline constexpr RecordField kDialinFields[] = {
    {"LoginID", FieldForm::BoundedText, DecodeText},
    {"LoginFlags", FieldForm::Plain, DecodeLoginFlags},
    {"DialBackNumber", FieldForm::BoundedText, DecodeText},
};

inline constexpr RecordField kAlertFields[] = {
    {"Temperature", FieldForm::Plain, DecodeFlag<>},
    {"Voltage", FieldForm::Plain, DecodeFlag<>},
    {"Tamper", FieldForm::Plain, DecodeFlag<>},
    {"MultipleFanFailure", FieldForm::Plain, DecodeFlag<>},
    {"PowerFailure", FieldForm::Plain, DecodeFlag<>},
    {"HardDrive", FieldForm::Plain, DecodeFlag<>},
    {"VRMFailure", FieldForm::Plain, DecodeFlag<>},
};

inline constexpr RecordLayout kSerialPortRecord = {.fields = kSerialPortFields};
inline constexpr RecordLayout kDialoutRecord = {.fields = kDialoutFields};
inline constexpr RecordLayout kDialinRecord = {.fields = kDialinFields};
inline constexpr RecordLayout kAlertRecord = {.fields = kAlertFields, .tellsPlainLength = true};

// The authority word of a dial-in login: bit i belongs to name i, the bits
// behind them to nobody.
inline constexpr std::string_view kAuthorityLevels[] = {
    "DenyAlways",
    "Supervisor",
    "ReadOnly",
    "NetworkingAndSecurity",
    "RemoteConsoleAccess",
    "RemoteConsoleVirtualMediaAccess",
    "RemoteServerPowerRestartAccess",
    "BasicConfiguration",
    "AbilityToClearEventLogs",
    "AdvancedConfiguration",
};

}  // namespace strake
