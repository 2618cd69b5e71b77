// What the command was asked to do.
#pragma once

#include "report/Formats.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace strake::app {

struct CollectOptions {
  std::optional<std::filesystem::path> server;  // "-": standard input; none: the server `demo`
  std::string demo = "demo-orlo";
  std::vector<std::string> classes;  // known ones; empty: all eight
  std::vector<std::string> queries;  // class lists; not empty: they replace the classes
  const report::Format* format = report::Formats().data();  // never null
  std::optional<std::filesystem::path> output;              // none: standard output
  std::optional<std::filesystem::path> trace;
  std::optional<std::filesystem::path> log;
  int logLevel = 1;
  bool showSecrets = false;
  bool quiet = false;  // no progress, no warnings
  std::optional<std::filesystem::path> plugin;
};

struct CheckOptions {
  std::vector<std::filesystem::path> files;  // "-": standard input
};

// Help or version: a text for standard output, nothing else.
struct TextAnswer {
  std::string text;
};

using CommandLine = std::variant<CollectOptions, CheckOptions, TextAnswer>;

// Throws UsageError.
CommandLine ParseCommandLine(int argc, const char* const* argv);

}  // namespace strake::app
