// What `strake replay` was asked to do.
#pragma once

#include <filesystem>
#include <optional>

namespace strake::app {

struct ReplayOptions {
  std::filesystem::path trace;  // "-": standard input
  bool scrub = false;
  std::optional<std::filesystem::path> output;  // none, "-": standard output
};

}  // namespace strake::app
