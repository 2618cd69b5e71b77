// The demonstration servers, whose descriptions (servers/demo-*.server.json)
// are part of the command. The texts are compiled in from these files.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace strake::app {

struct BuiltInServer {
  std::string_view name;
  std::string_view text;
};

// Generated.
std::span<const BuiltInServer> BuiltInServers();

const BuiltInServer* FindBuiltInServer(std::string_view name);
// For people: the names, separated by ", ".
std::string BuiltInServerNames();

}  // namespace strake::app
