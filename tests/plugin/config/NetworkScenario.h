// What the network tests share: a server that answers every network command,
// and the lines that a send leaves in the log.
#pragma once

#include "tests/support/Scenario.h"

#include <cstddef>
#include <initializer_list>
#include <string>

namespace strake::tests {

inline constexpr const char* kInterfaceClass = "VELKSG_ServProc_IPProtocolEndpoint";
inline constexpr const char* kSummaryClass = "VELKSG_ServProc_IPProtocolEndpoint2";
inline constexpr const char* kInterfaceList = "4.9.1.1.255";  // as components are counted

// One behind the other.
Lines Joined(std::initializer_list<Lines> lists);
std::string RecordOf(const Lines& elements);
// The elements with another one at a place, counted from 1.
Lines With(Lines elements, std::size_t place, const std::string& element);

// What the sender logs of a command that is carried out, and of one that is not.
Lines SentLines(const std::string& identifier, int length, int sp = 0);
Lines FailedLines(const std::string& identifier, int length = 0, int sp = 0);

// From a builder's "entered." line to its "completed." line, the first time.
Lines LogsOf(const Scenario& scenario, const std::string& builder);
// "SP IDENTIFIER" of each dot command and "count IDENTIFIER -> N" of each
// count, without the presence tests.
Lines Commands(const Scenario& scenario);

// A record of each kind, every element of it filled; the vector IDs count from
// 1 and the second header bytes from 241, 101 and 201.
Lines InterfaceElements();
Lines DnsElements();
Lines CommunityElements();

// `sps` instances that answer every network command with data; each has two
// interfaces.
Scenario NetworkServer(int sps = 1);

}  // namespace strake::tests
