// What `strake diff` was asked to do.
#pragma once

#include "compare/DiffReport.h"

#include <filesystem>
#include <optional>

namespace strake::app {

using DiffWriter = void (*)(const compare::DiffReport& diff, const report::Sink& sink);

struct DiffOptions {
  std::filesystem::path before;  // "-": standard input
  std::filesystem::path after;
  double tolerancePercent = 0;
  DiffWriter write = compare::WriteDiffTable;
  std::optional<std::filesystem::path> output;  // none, "-": standard output
};

}  // namespace strake::app
