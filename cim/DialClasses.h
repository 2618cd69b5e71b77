// The catalogue's rows of the dial classes.
#pragma once

#include "cim/IdentityProperties.h"

namespace strake::cim {

inline constexpr SchemaProperty kInstance{"Instance", "Number",
                                          "The number of the entry on its node, from 1.",
                                          CimType::String, Role::Key};

inline constexpr SchemaProperty kDialOut[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    kSystemCreationClassName,
    kSystemName,
    kInstance,
    {"DialStatus", "Status",
     "Whether the entry is used: Valid and enabled, Valid but disabled, Invalid or None."},
    {"PhoneNumberLAN", "Number or address", "The telephone number or the LAN address to reach."},
    {"TextDescription", "Description", "What people call the entry."},
    {"ConnectionType", "Connection", "How the recipient is reached."},
    {"DialoutID", "Login ID", "The name to log in with at the recipient."},
    {"DialoutPassword", "Password", "The password to log in with at the recipient.",
     CimType::String, Role::Secret},
    {"PagerPIN", "Pager PIN", "The PIN of the pager.", CimType::String, Role::Secret},
    {"EmailAddress", "E-mail address", "The e-mail address of the recipient."},
    {"PPPLoginID", "PPP login ID", "The name to log in with over PPP."},
    {"PPPPassword", "PPP password", "The password to log in with over PPP.", CimType::String,
     Role::Secret},
    {"SelectiveAlertNotification", "Alerts",
     "Whether the recipient gets all enabled alerts or the critical ones only."},
};

inline constexpr SchemaProperty kDialIn[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    kSystemCreationClassName,
    kSystemName,
    kInstance,
    {"LoginID", "Login ID", "The name to log in with."},
    {"LoginFlags", "Login flags", "What the login permits, and that dial back is disabled."},
    {"DialBackNumber", "Dial-back number", "The number that is dialled back."},
    {"DenyAlways", "Deny always", "Whether the login is always denied: Enabled or Disabled."},
    {"Supervisor", "Supervisor", "Whether the login has every authority: Enabled or Disabled."},
    {"ReadOnly", "Read only", "Whether the login can only read: Enabled or Disabled."},
    {"NetworkingAndSecurity", "Networking and security",
     "Authority over networking and security: Enabled or Disabled."},
    {"RemoteConsoleAccess", "Remote console",
     "Authority to use the remote console: Enabled or Disabled."},
    {"RemoteConsoleVirtualMediaAccess", "Remote console and virtual media",
     "Authority to use the remote console and virtual media: Enabled or Disabled."},
    {"RemoteServerPowerRestartAccess", "Remote power and restart",
     "Authority to switch and restart the server: Enabled or Disabled."},
    {"BasicConfiguration", "Basic configuration",
     "Authority to change the basic configuration: Enabled or Disabled."},
    {"AbilityToClearEventLogs", "Clear event logs",
     "Authority to clear the event logs: Enabled or Disabled."},
    {"AdvancedConfiguration", "Advanced configuration",
     "Authority to change the advanced configuration: Enabled or Disabled."},
    {"LastLogin", "Last login", "When the login was last used.", CimType::DateTime},
};

inline constexpr SchemaProperty kSerialPort[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    kSystemCreationClassName,
    kSystemName,
    kInstance,
    {"BaudRate", "Baud rate", "The speed of the port.", CimType::String, Role::Plain,
     "bits per second"},
    {"Parity", "Parity", "The parity bit: Odd, Even, Mark, Space or None."},
    {"StopBits", "Stop bits", "The number of stop bits: 1, 2 or 1.5, or None."},
    {"NullModem", "Attached",
     "What the port is attached to: Modem present, or Null Modem or Lap Link cable."},
    {"InitializationString", "Initialization string", "What is sent to prepare the modem."},
    {"PortEnabled", "State", "Whether the port is in use: Enabled or Disabled."},
    {"ModemCallerIDString", "Caller ID string", "What makes the modem tell the caller."},
    {"FactorySettingsString", "Factory settings string",
     "What gives the modem its factory settings."},
    {"ModemEscapeGuardTime", "Escape guard time",
     "How long the line is silent around the escape string, with its unit, msecs."},
    {"ModemEscapeString", "Escape string", "What takes the modem from data to commands."},
    {"ModemPrefixString", "Dial prefix string", "What stands before a number to dial."},
    {"ModemPostfixString", "Dial postfix string", "What stands behind a number to dial."},
    {"ModemAutoAnswerString", "Auto-answer string", "What makes the modem take calls."},
    {"ModemAutoAnswerStopString", "Auto-answer stop string",
     "What makes the modem take calls no longer."},
    {"ModemQueryString", "Query string", "What asks whether the modem is there."},
    {"ModemHangupString", "Hang-up string", "What ends a call."},
};

inline constexpr SchemaProperty kDialOutAlerts[] = {
    kCreationClassName,
    kSourceNode,
    kName,
    kSystemCreationClassName,
    kSystemName,
    {"Temperature", "Temperature", "Whether temperature alerts are sent: Enabled or Disabled."},
    {"Voltage", "Voltage", "Whether voltage alerts are sent: Enabled or Disabled."},
    {"Tamper", "Tamper", "Whether tamper alerts are sent: Enabled or Disabled."},
    {"MultipleFanFailure", "Multiple fan failure",
     "Whether alerts of several failing fans are sent: Enabled or Disabled."},
    {"PowerFailure", "Power failure",
     "Whether power failure alerts are sent: Enabled or Disabled."},
    {"HardDrive", "Hard drive", "Whether hard drive alerts are sent: Enabled or Disabled."},
    {"VRMFailure", "VRM failure",
     "Whether alerts of a failing voltage regulator module are sent: Enabled or Disabled."},
};

}  // namespace strake::cim
