// The program OsHelper.cpp, which lies beside the one that runs.
#pragma once

#include "os/CommandFolder.h"

#include <filesystem>

namespace strake::tests {

inline std::filesystem::path Helper() {
  return os::CommandFile()
      .replace_filename("os_helper")
      .replace_extension(os::CommandFile().extension());
}

}  // namespace strake::tests
