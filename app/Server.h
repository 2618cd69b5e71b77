// The server that the command works with: a file's or a built-in one.
#pragma once

#include "platform/server/ServerDescription.h"
#include "report/Report.h"

#include <filesystem>
#include <string>

namespace strake::app {

struct Server {
  report::ServerFacts facts;
  platform::ServerDescription description;
};

// What the reports call a server that a file describes.
std::string ServerName(const std::filesystem::path& file);

// Both throw text::InputError, and RunError when there is not enough
// memory.
Server ReadServer(const std::filesystem::path& file);
Server LoadBuiltInServer(const std::string& name);  // one that exists

}  // namespace strake::app
