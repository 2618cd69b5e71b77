// The trace of a collection, and what a replay makes of it.
#pragma once

#include "fuzz/ServerBytes.h"
#include "platform/server/ServerDescription.h"
#include "replay/Replay.h"

#include <functional>
#include <string>
#include <vector>

namespace strake::tests {

using Queries = std::vector<std::vector<std::string>>;

// Of the queries, in a process as it is fresh; the addresses of status lines read ADDR.
std::string TraceOf(const platform::ServerDescription& server, const Queries& queries);

replay::Replay ReplayOf(const std::string& trace);

// Its description, as it is written and read again.
platform::ServerDescription DescriptionOf(const replay::Replay& replay);

// Servers of the fuzzers' making, with their traces: the seeds, and seeds with some
// bytes changed.
inline constexpr std::size_t kOddServers = 200;
void ForEachOddServer(const std::function<void(const std::string& name, const fuzz::ServerCase& one,
                                               const std::string& trace)>& visit);

}  // namespace strake::tests
