// The options of `strake replay`.
#include "app/Subcommands.h"
#include "os/FileName.h"

namespace strake::app {
namespace {

constexpr const char* kReplayExamples =
    R"(Makes a server description whose own trace, collected with the same queries, is
the same line for line, but for the addresses in status lines. Its "capture" says
which command that is. What a description cannot say is warned of.

Examples:
  strake replay run.trace --output field.server.json
  strake replay run.trace --scrub --output field.server.json

Exit status: 0 the description is written, 1 it cannot be, 2 wrong usage or a trace
that is refused.
A description holds what the service processors said, passwords included; without
--scrub it is created with mode 0600.)";

}  // namespace

Subcommand AddReplay(CLI::App& app, ReplayOptions& options) {
  Subcommand command(app, "replay", "Make a server description out of a trace", kReplayExamples);
  command
      .AddValue("trace", "TRACE", "What collect --trace wrote; - is standard input",
                [&options](const std::string& value) { options.trace = os::FileNamed(value); })
      .Required()
      .NamesFile();
  command.AddFlag("--scrub", "Replace names, addresses and texts, each by the same everywhere",
                  [&options] { options.scrub = true; });
  command.AddFile("--output", "Where the description goes; default: standard output",
                  options.output);
  return command;
}

}  // namespace strake::app
