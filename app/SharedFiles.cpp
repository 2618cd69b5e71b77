#include "app/SharedFiles.h"

#include "app/Errors.h"
#include "os/FileIdentity.h"

#include <string>
#include <utility>

namespace strake::app {
namespace {

using OptionalFile = std::optional<std::filesystem::path>;

struct NamedFile {
  std::string option;
  std::string name;
  os::FileIdentity identity;
};

void AddInput(std::vector<NamedFile>& files, const std::string& option, const OptionalFile& file) {
  if (file) {
    files.push_back(
        {option, file->string(),
         *file == "-" ? os::IdentityOfDescriptor(os::kStandardInput) : os::IdentityOf(*file)});
  }
}

void AddOutput(std::vector<NamedFile>& files, const std::string& option, const OptionalFile& file) {
  if (!file) {
    return;
  }
  files.push_back({option, file->string(), os::IdentityOf(*file)});
  const std::optional<int> descriptor = files.back().identity.descriptor;
  if (descriptor && !os::IsOpenForWriting(*descriptor)) {
    throw UsageError(option + ": " + file->string() + ": descriptor " +
                     std::to_string(*descriptor) + " is not open for writing");
  }
}

void RefuseSame(const NamedFile& one, const NamedFile& other) {
  if (one.identity.IsSameAs(other.identity)) {
    throw UsageError(one.option + " and " + other.option + ": both are the file " + other.name);
  }
}

// An output may be a standard descriptor itself, and then goes on where that
// stands. Opened by its name, the file behind it would be written twice.
void RefuseBehind(const std::string& what, int descriptor, const NamedFile& output) {
  if (output.identity.descriptor != descriptor) {
    RefuseSame({what, "", os::IdentityOfDescriptor(descriptor)}, output);
  }
}

// Against what is taken, and against each other.
void RefuseSharedOutputs(std::vector<NamedFile> taken, const std::vector<NamedFile>& outputs) {
  for (const NamedFile& output : outputs) {
    for (const NamedFile& other : taken) {
      RefuseSame(other, output);
    }
    RefuseBehind("standard output", os::kStandardOutput, output);
    RefuseBehind("standard error", os::kStandardError, output);
    taken.push_back(output);
  }
}

bool IsStandardOutput(const OptionalFile& output) {
  return !output || os::NamedDescriptor(*output) == os::kStandardOutput;
}

}  // namespace

bool GoesToStandardOutput(const CollectOptions& options) {
  return IsStandardOutput(options.output);
}

bool GoesToStandardOutput(const ReplayOptions& options) { return IsStandardOutput(options.output); }

void RefuseSharedFiles(const CollectOptions& options) {
  std::vector<NamedFile> taken;
  AddInput(taken, "--server", options.server);
  for (const std::filesystem::path& server : options.many.servers) {
    AddInput(taken, "--server", server);
  }
  AddInput(taken, "--limits", options.limits);
  AddInput(taken, "--plugin", options.plugin);
  std::vector<NamedFile> outputs;
  if (GoesToStandardOutput(options)) {
    // Standard output carries the report and nothing else.
    taken.push_back({"the report", "", os::IdentityOfDescriptor(os::kStandardOutput)});
  } else {
    AddOutput(outputs, "--output", options.output);
  }
  AddOutput(outputs, "--trace", options.trace);
  AddOutput(outputs, "--log", options.log);
  RefuseSharedOutputs(std::move(taken), outputs);
}

void RefuseSharedFiles(const ReplayOptions& options) {
  std::vector<NamedFile> taken;
  AddInput(taken, "the trace", options.trace);
  std::vector<NamedFile> outputs;
  if (!GoesToStandardOutput(options)) {
    AddOutput(outputs, "--output", options.output);
  }
  RefuseSharedOutputs(std::move(taken), outputs);
}

}  // namespace strake::app
