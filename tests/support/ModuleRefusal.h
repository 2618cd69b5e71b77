// What is said of a module that cannot be used.
#pragma once

#include "platform/session/PluginModule.h"

#include <filesystem>
#include <string>

namespace strake::tests {

inline std::string RefusalOf(const std::filesystem::path& file) {
  try {
    const platform::PluginModule module(file);
  } catch (const os::ModuleError& error) {
    return error.what();
  }
  return "loaded";
}

}  // namespace strake::tests
