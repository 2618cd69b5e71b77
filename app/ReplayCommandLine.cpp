// The options of `strake replay`.
#include "app/CommandLineParts.h"

namespace strake::app {

void AddReplay(CLI::App& command, ReplayOptions& options) {
  AddValue(command, "trace", "TRACE", "What collect --trace wrote; - is standard input",
           [&options](const std::string& value) { options.trace = value; })
      ->required()
      ->check(RefuseEmptyName);
  command.add_flag("--scrub", options.scrub,
                   "Replace names, addresses and texts, each by the same everywhere");
  AddFile(command, "--output", "Where the description goes; default: standard output",
          options.output);
}

}  // namespace strake::app
