// What the fuzzers start from. fuzz/corpus holds exactly these seeds; what a
// fuzzer finds becomes one of them.
#pragma once

#include "fuzz/ServerBytes.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace strake::fuzz {

struct NamedServer {
  std::string name;  // the file's, without ".server.json"
  std::string text;
  platform::ServerDescription server;
};

// A seed's file name and its bytes.
using Seeds = std::map<std::string, std::string>;

// A file's bytes. Throws std::runtime_error.
std::string ReadBytes(const std::filesystem::path& file);
// The *.server.json of a folder, by name. Throws when there is none.
std::vector<NamedServer> ReadServers(const std::filesystem::path& folder);

// What a harness (Harnesses.h) starts from.
Seeds SeedsOf(std::string_view harness, const std::vector<NamedServer>& servers);

// The server with one service processor and nothing that the query does not ask
// it for, which is what a fuzzer gets through quickly.
ServerCase CutDown(platform::ServerDescription server, const Query& query);

// Of the queries, in a process as it is fresh.
std::string TraceOf(const platform::ServerDescription& server, const std::vector<Query>& queries);

// Every server with its whole collection, and the Orlo ones cut down to each query.
Seeds QuerySeeds(const std::vector<NamedServer>& servers);
// Servers whose replies are not to be believed, and hosts that fail.
Seeds HostileQuerySeeds();
// The traces of queries, without what is only told, and every other line of a trace.
Seeds ReplaySeeds(const std::vector<NamedServer>& servers);
// What the servers' collections bring, cut down, and instances of any text.
Seeds ReportSeeds(const std::vector<NamedServer>& servers);
// The replies of the servers and records that hold nothing but trouble.
Seeds WalkSeeds(const std::vector<NamedServer>& servers);
// The servers' texts without blanks, cut ones, and JSON that is odd.
Seeds DescriptionSeeds(const std::vector<NamedServer>& servers);

}  // namespace strake::fuzz
