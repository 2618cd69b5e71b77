// What the fuzzers start from.
#pragma once

#include "fuzz/ServerBytes.h"

#include <map>
#include <string>
#include <vector>

namespace strake::fuzz {

struct NamedServer {
  std::string name;  // the file's, without ".server.json"
  std::string text;
  platform::ServerDescription server;
};

// A seed's file name and its bytes.
using Seeds = std::map<std::string, std::string>;

struct NamedQuery {
  std::string name;
  Query classes;
};

// As few queries as bring every class.
const std::vector<NamedQuery>& WholeCollection();
std::vector<Query> WholeCollectionQueries();

// The server with one service processor and nothing that the query does not ask
// it for, which is what a fuzzer gets through quickly.
ServerCase CutDown(platform::ServerDescription server, const Query& query);

// Every server with its whole collection, and the Orlo ones cut down to each query.
Seeds QuerySeeds(const std::vector<NamedServer>& servers);
// Servers whose replies are not to be believed, and hosts that fail.
Seeds HostileQuerySeeds();
// The replies of the servers and records that hold nothing but trouble.
Seeds WalkSeeds(const std::vector<NamedServer>& servers);
// The servers' texts without blanks, cut ones, and JSON that is odd.
Seeds DescriptionSeeds(const std::vector<NamedServer>& servers);

}  // namespace strake::fuzz
