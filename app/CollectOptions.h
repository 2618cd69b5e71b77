// What `strake collect` was asked to do.
#pragma once

#include "report/Finding.h"
#include "report/Formats.h"
#include "report/Selection.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace strake::app {

// Servers that are collected in a process each.
struct ManyServers {
  std::vector<std::filesystem::path> servers;        // "-": standard input; empty: not so many
  std::size_t jobs = 1;                              // so many processes at once
  std::optional<std::chrono::milliseconds> timeout;  // of one, from its start
  std::vector<std::string> words;                    // that each process is given
};

struct CollectOptions {
  std::optional<std::filesystem::path> server;  // "-": standard input; none: the server `demo`
  ManyServers many;                             // instead of the server
  std::string demo = "demo-orlo";
  std::vector<std::string> classes;  // known ones; empty: all eight
  std::vector<std::string> queries;  // class lists; not empty: they replace the classes
  report::Selection selection;
  std::optional<std::filesystem::path> limits;              // "-": standard input
  const report::Format* format = report::Formats().data();  // never null
  report::SensorOrder order = report::SensorOrder::AsCollected;
  bool header = true;
  std::optional<std::filesystem::path> output;  // none: standard output
  std::optional<std::filesystem::path> trace;
  std::optional<std::filesystem::path> log;
  int logLevel = 1;
  bool showSecrets = false;
  bool quiet = false;                      // no progress, no warnings
  std::optional<report::Severity> failOn;  // the mildest finding that is a failure
  std::optional<std::filesystem::path> plugin;
};

}  // namespace strake::app
