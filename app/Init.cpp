#include "app/Init.h"

#include "app/Errors.h"
#include "app/Output.h"
#include "describe/DescriptionText.h"
#include "describe/Skeleton.h"
#include "os/FileIdentity.h"
#include "os/OutputFile.h"
#include "os/ShellWord.h"
#include "text/TextEscape.h"

#include <system_error>

namespace strake::app {
namespace {

namespace fs = std::filesystem;

platform::ServerDescription Skeleton(const InitOptions& options) {
  return options.kind == platform::SpKind::Tavit ? describe::TavitSkeleton(options.machineTypeModel)
                                                 : describe::OrloSkeleton(options.machineTypeModel);
}

// What somebody filled in by hand is in no other place.
void RefuseFilledFile(const fs::path& file) {
  std::error_code error;
  const bool isFilled = fs::is_regular_file(file, error) && fs::file_size(file, error) != 0;
  if (isFilled && !error) {
    throw UsageError("--output: the file " + file.string() +
                     " is there already and is not empty; name another one");
  }
}

}  // namespace

int Init(const InitOptions& options) {
  // One of the process' own descriptors goes on where it stands.
  const bool isFile = options.output && !os::NamedDescriptor(*options.output);
  if (isFile) {
    RefuseFilledFile(*options.output);
  }
  const std::string text =
      describe::DescriptionText(Skeleton(options), std::nullopt, describe::ReplyForm::Records);
  WriteOutput(options.output, [&text](const report::Sink& sink) { sink(text); });
  if (isFile) {
    const std::string name = options.output->string();
    os::WriteStandardOutput(
        text::EscapeForPeople(name + " is written; fill it in, and try it with: strake check " +
                              os::ShellWord(name)) +
        "\n");
  }
  return kExitDone;
}

}  // namespace strake::app
