// What is measured: one query on a built-in server a group.
#pragma once

#include "platform/server/ServerDescription.h"

#include <span>
#include <string>
#include <vector>

namespace strake::bench {

struct Group {
  const char* name;
  const char* server;  // servers/SERVER.server.json
  std::vector<std::string> classes;
};

std::span<const Group> Groups();
const Group& GroupNamed(const std::string& name);

// The group's server, at zero SP latency.
platform::ServerDescription ServerOf(const Group& group);

}  // namespace strake::bench
