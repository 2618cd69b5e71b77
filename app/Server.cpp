#include "app/Server.h"

#include "app/BuiltInServers.h"

#include <utility>

namespace strake::app {
namespace {

Server Named(const std::string& name, platform::ServerDescription description) {
  Server server;
  server.facts = {name, description.description, description.sp.kind};
  server.description = std::move(description);
  return server;
}

}  // namespace

Server ReadServer(const std::filesystem::path& file) {
  return Named(file.filename().string(), platform::ReadServerDescription(file));
}

Server LoadBuiltInServer(const std::string& name) {
  const BuiltInServer* const server = FindBuiltInServer(name);
  if (server == nullptr) {
    throw platform::DescriptionError(name + ": there is no built-in server of this name");
  }
  return Named(name, platform::ParseServerDescription(server->text, name));
}

}  // namespace strake::app
