// The server that the command works with: a file's or a built-in one.
#pragma once

#include "app/Report.h"
#include "platform/server/ServerDescription.h"

#include <filesystem>
#include <string>

namespace strake::app {

struct Server {
  ServerFacts facts;
  platform::ServerDescription description;
};

// Both throw platform::DescriptionError.
Server ReadServer(const std::filesystem::path& file);
Server LoadBuiltInServer(const std::string& name);  // one that exists

}  // namespace strake::app
