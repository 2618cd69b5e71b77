// A program, started with pipes behind its standard output and standard error.
// For the sources of this folder.
#pragma once

#include "os/Handle_windows.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace strake::os {

constexpr std::size_t kPipeSize = std::size_t{64} * 1024;

struct StartedProcess {
  Handle job;  // ends the process and whom it started when it is closed
  Handle process;
  Handle output;  // to be read
  Handle errors;
};

// It has the standard input of this process or an empty one, and no other handle
// of it. Throws std::system_error.
StartedProcess Start(const std::filesystem::path& program, const std::vector<std::string>& words,
                     bool hasInput);

}  // namespace strake::os
