#include "app/SharedFiles.h"

#include "app/Errors.h"
#include "app/Server.h"
#include "os/OutputTarget.h"

#include <initializer_list>
#include <string>
#include <utility>

namespace strake::app {
namespace {

struct NamedFile {
  std::string option;
  std::filesystem::path file;
};

std::vector<NamedFile> Given(
    std::initializer_list<std::pair<const char*, std::optional<std::filesystem::path>>> options) {
  std::vector<NamedFile> files;
  for (const auto& [option, file] : options) {
    if (file) {
      files.push_back({option, *file});
    }
  }
  return files;
}

void RefuseSame(const NamedFile& one, const NamedFile& other) {
  if (os::AreSameFile(one.file, other.file)) {
    throw UsageError(one.option + " and " + other.option + ": both are the file " +
                     other.file.string());
  }
}

}  // namespace

void RefuseSharedFiles(const CollectOptions& options) {
  std::optional<std::filesystem::path> server = options.server;
  if (server == kStandardInput) {
    server.reset();
  }
  std::vector<NamedFile> taken = Given({{"--server", server}, {"--plugin", options.plugin}});
  std::vector<NamedFile> outputs =
      Given({{"--output", options.output}, {"--trace", options.trace}, {"--log", options.log}});
  if (!options.output) {
    // Standard output carries the report and nothing else.
    taken.push_back({"the report", "/dev/stdout"});
  }
  for (const NamedFile& output : outputs) {
    for (const NamedFile& other : taken) {
      RefuseSame(other, output);
    }
    taken.push_back(output);
  }
}

}  // namespace strake::app
