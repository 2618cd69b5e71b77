// What `strake init` was asked to do.
#pragma once

#include "platform/server/SpDescription.h"

#include <filesystem>
#include <optional>
#include <string>

namespace strake::app {

struct InitOptions {
  platform::SpKind kind = platform::SpKind::Orlo;  // or Tavit
  std::string machineTypeModel;                    // "5125" or "5125-K2G"; empty: any
  std::optional<std::filesystem::path> output;     // none, "-": standard output
};

}  // namespace strake::app
