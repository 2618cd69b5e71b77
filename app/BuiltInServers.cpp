#include "app/BuiltInServers.h"

namespace strake::app {

const BuiltInServer* FindBuiltInServer(std::string_view name) {
  for (const BuiltInServer& server : BuiltInServers()) {
    if (server.name == name) {
      return &server;
    }
  }
  return nullptr;
}

std::string BuiltInServerNames() {
  std::string names;
  for (const BuiltInServer& server : BuiltInServers()) {
    if (!names.empty()) {
      names += ", ";
    }
    names += server.name;
  }
  return names;
}

}  // namespace strake::app
