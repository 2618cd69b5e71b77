// What a trace comes to: a server whose own trace is the same.
#pragma once

#include "platform/server/ServerDescription.h"

#include <string>
#include <vector>

namespace strake::replay {

struct Replay {
  platform::ServerDescription server;
  std::string source;                             // where it comes from, for people
  std::vector<std::vector<std::string>> queries;  // the classes of each
  // What no description can say: a sentence each, without any text of the server's.
  std::vector<std::string> warnings;
};

}  // namespace strake::replay
