// The options of `strake check`.
#include "app/Subcommands.h"
#include "os/FileName.h"

namespace strake::app {
namespace {

constexpr const char* kCheckExamples =
    R"(Every file gets a line, and a further one for each thing in it that nothing
will ask for; - is standard input.

Examples:
  strake check rack7.server.json
  strake check servers/*.server.json

Exit status: 0 all descriptions are fine, 2 one is refused, 1 the check itself
failed.)";

}  // namespace

Subcommand AddCheck(CLI::App& app, CheckOptions& options) {
  Subcommand command(app, "check", "Check server descriptions", kCheckExamples);
  command
      .AddValue(
          "file", "FILE", "Server descriptions (*.server.json)",
          [&options](const std::string& value) { options.files.push_back(os::FileNamed(value)); })
      .Required()
      .Several()
      .NamesFile();
  return command;
}

}  // namespace strake::app
