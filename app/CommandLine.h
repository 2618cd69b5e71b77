// What the command was asked to do.
#pragma once

#include "app/CollectOptions.h"
#include "app/DiffOptions.h"
#include "app/InitOptions.h"
#include "app/ReplayOptions.h"
#include "app/Schema.h"
#include "app/WatchOptions.h"

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace strake::app {

struct CheckOptions {
  std::vector<std::filesystem::path> files;  // "-": standard input
};

// Help, version, list of classes or completion: a text for standard output, nothing else.
struct TextAnswer {
  std::string text;
};

using CommandLine = std::variant<CollectOptions, WatchOptions, CheckOptions, DiffOptions,
                                 ReplayOptions, InitOptions, SchemaOptions, TextAnswer>;

// Throws UsageError.
CommandLine ParseCommandLine(int argc, const char* const* argv);

}  // namespace strake::app
