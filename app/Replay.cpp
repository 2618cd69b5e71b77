#include "app/Replay.h"

#include "app/Errors.h"
#include "app/Input.h"
#include "app/Messages.h"
#include "app/SharedFiles.h"
#include "app/Trail.h"
#include "os/OutputFile.h"
#include "os/ShellWord.h"
#include "platform/server/ServerDescription.h"
#include "replay/DescriptionWriter.h"
#include "replay/ReplayBuilder.h"
#include "replay/Scrub.h"
#include "replay/TraceReader.h"
#include "text/TextEscape.h"

#include <memory>
#include <random>
#include <string>

namespace strake::app {
namespace {

replay::Replay Read(const ReplayOptions& options) {
  const std::string name = InputName(options.trace);
  const std::string text = ReadWholeInput(options.trace, replay::kMostTraceBytes);
  replay::ReplayBuilder builder;
  replay::ReadTrace(text, name,
                    [&builder](replay::TraceEvent event) { builder.Take(std::move(event)); });
  return builder.Complete(
      name, options.trace == kStandardInput ? name : options.trace.filename().string());
}

// Nobody can tell the texts from their replacements without it.
std::uint64_t MakeKey() {
  std::random_device device;
  return std::uint64_t{device()} << 32U | device();
}

}  // namespace

int Replay(const ReplayOptions& options) {
  RefuseSharedFiles(options);
  replay::Replay replay = Read(options);
  if (options.scrub) {
    replay::Scrub(replay, MakeKey());
  }
  const std::string text = replay::WriteDescription(replay);
  // What is written can be read: a trace may hold more than a description.
  static_cast<void>(
      platform::ParseServerDescription(text, "the description of " + InputName(options.trace)));
  const bool isFile = !GoesToStandardOutput(options);
  const std::unique_ptr<os::OutputFile> file =
      OpenOutput(isFile ? options.output : std::nullopt,
                 options.scrub ? os::Privacy::Usual : os::Privacy::Owner);
  for (const std::string& warning : replay.warnings) {
    TellWarning(warning);
  }
  if (file) {
    file->Write(text);
    file->Complete();
    os::WriteStandardOutput(
        text::EscapeForPeople(options.output->string() + " is written; replay it with: " +
                              replay::CommandOf(replay, options.output->string(), os::ShellWord)) +
        "\n");
  } else {
    os::WriteStandardOutput(text);
  }
  return kExitDone;
}

}  // namespace strake::app
