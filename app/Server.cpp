#include "app/Server.h"

#include "app/BuiltInServers.h"
#include "app/Errors.h"
#include "app/Input.h"
#include "text/InputError.h"

#include <cstdio>
#include <new>
#include <utility>

namespace strake::app {
namespace {

Server Named(const std::string& name, platform::ServerDescription description) {
  Server server;
  server.facts = {name, description.description,
                  std::string(platform::KindName(description.sp.kind))};
  server.description = std::move(description);
  return server;
}

}  // namespace

std::string ServerName(const std::filesystem::path& file) {
  return file == kStandardInput ? InputName(file) : file.filename().string();
}

Server ReadServer(const std::filesystem::path& file) {
  const std::string name = InputName(file);
  try {
    return Named(ServerName(file), file == kStandardInput
                                       ? platform::ReadServerDescription(stdin, name)
                                       : platform::ReadServerDescription(file));
  } catch (const std::bad_alloc&) {
    throw RunError(name + ": there is not enough memory to read it");
  }
}

Server LoadBuiltInServer(const std::string& name) {
  const BuiltInServer* const server = FindBuiltInServer(name);
  if (server == nullptr) {
    throw text::InputError(name + ": there is no built-in server of this name");
  }
  return Named(name, platform::ParseServerDescription(server->text, name));
}

}  // namespace strake::app
