// The words of `strake completion`.
#include "app/Subcommands.h"
#include "text/OrList.h"

namespace strake::app {
namespace {

constexpr const char* kCompletionExamples =
    R"(A package installs it for all shells. Without one, for this shell alone:

Examples:
  source <(strake completion bash)
  source <(strake completion zsh)       behind autoload -U compinit and compinit
  strake completion fish | source)";

}  // namespace

Subcommand AddCompletion(CLI::App& app, CompletionOptions& options) {
  Subcommand command(app, "completion", "Write completion for a shell", kCompletionExamples);
  command
      .AddValue(
          "shell", "SHELL",
          "Which shell: " + text::OrList(CompletionShells(), &CompletionShell::name),
          [&options](const std::string& value) { options.shell = FindCompletionShell(value); })
      .Required()
      .OneOf(text::Names(CompletionShells(), &CompletionShell::name), "shell");
  return command;
}

}  // namespace strake::app
