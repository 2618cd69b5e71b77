// Servers whose service processors answer the dial commands, and pieces of the
// trail that they leave.
#pragma once

#include "tests/support/Scenario.h"

#include <string>
#include <string_view>
#include <vector>

namespace strake::tests {

inline constexpr const char* kDialout = "VELKSG_ServProc_DialProtocolEndpoint1";
inline constexpr const char* kDialin = "VELKSG_ServProc_DialProtocolEndpoint2";
inline constexpr const char* kSerialPort = "VELKSG_ServProc_DialProtocolEndpoint3";
inline constexpr const char* kAlerts = "VELKSG_ServProc_DialProtocolEndpoint4";

// Records that name every element. Vector IDs and header bytes differ from
// element to element.
std::string SerialPortReply();
std::string DialoutReply();
std::string DialinReply();
std::string AlertReply(const std::string& sevenBytes);

// Each SP has two serial ports, `dialouts` dial-out entries, `dialins` logins
// and its alerts, all of them filled.
Scenario DialServer(int sps = 1, int dialouts = 3, int dialins = 2);

// The log lines of one send.
Lines Answered(std::string_view identifier, int length, int sp = 0);
Lines Unanswered(std::string_view identifier, int length = 0, int sp = 0);
// One text after the other.
Lines Join(const std::vector<Lines>& pieces);

// The log lines of the dial driver and of its readers' beginnings, ends and
// failures: without what senders and records tell.
Lines DriverLines(const Scenario& scenario);
// The log lines of a reader from its "entered." line on, that included, to its
// "completed." line or, where that lacks, to the end.
Lines ReaderLines(const Scenario& scenario, const std::string& reader, int instance);

// An instance's property as "TYPE VALUE"; "unset" when it has none of the name.
std::string Property(const Scenario& scenario, unsigned long instance, std::string_view name);

}  // namespace strake::tests
