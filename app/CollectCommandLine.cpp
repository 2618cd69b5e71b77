// The options of `strake collect`.
#include "app/ClassNames.h"
#include "app/ManyServersOptions.h"
#include "app/QueryOptions.h"
#include "app/QueryPlan.h"
#include "app/Subcommands.h"
#include "text/OrList.h"

#include <array>
#include <string>

namespace strake::app {
namespace {

constexpr const char* kCollectExamples =
    R"(Where a file is asked for, - is standard input or output.

Examples:
  strake collect
  strake collect --class system --class sensors
  strake collect --class sensors --format csv --output sensors.csv
  strake collect --sensor "fan*" --sort reading --limits limits.toml --fail-on warning
  strake collect --query VELKSG_SP_ComputerSystem,VELKSG_SP_NumericSensor --query ""
  strake collect --server rack7.server.json --format json --output report.json
  strake collect --log run.log --trace run.trace
  strake collect --server a.server.json --server b.server.json --format jsonl --timeout 30s

Exit status: 0 the queries ran, 1 the run failed, of several servers one of them,
2 wrong usage or a refused input, 3 with --fail-on: there is a finding of that
severity or above.
Traces and logs hold what the service processors said, passwords included; they
are created with mode 0600.)";

void AddFailOn(Subcommand& app, CollectOptions& options) {
  constexpr std::array kFailing{report::Severity::Warning, report::Severity::Critical};
  app.AddValue(
         "--fail-on", "SEVERITY",
         "Exit with 3 when there is a finding of this severity or above: " +
             text::OrList(kFailing, report::SeverityName),
         [&options](const std::string& value) { options.failOn = report::FindSeverity(value); })
      .OneOf(text::Names(kFailing, report::SeverityName));
}

void AddOutput(Subcommand& app, CollectOptions& options) {
  app.AddValue("--format", "FORMAT",
               "The report's format: " + report::FormatNames() +
                   "; default: what the ending of --output says, else " +
                   std::string(report::Formats().front().name),
               [&options](const std::string& value) { options.format = report::FindFormat(value); })
      .OneOf(text::Names(report::Formats(), &report::Format::name), "format");
  app.AddFile("--output", "Where the report goes; default: standard output", options.output);
}

// The ending of the output picks the format or agrees with it.
void ChooseFormat(const Subcommand& command, CollectOptions& options) {
  const report::Format* const ofFile =
      options.output ? report::FindFormatOfFile(options.output->string()) : nullptr;
  if (ofFile == nullptr) {
    return;
  }
  if (!command.HasOption("--format")) {
    options.format = ofFile;
  } else if (options.format != ofFile) {
    command.Refuse("--format says " + std::string(options.format->name) +
                   ", but the ending of --output " + options.output->string() + " says " +
                   std::string(ofFile->name));
  }
}

void RefuseLayoutOfOtherFormats(const Subcommand& command, const CollectOptions& options) {
  for (const std::string option : {"--sort", "--no-header"}) {
    if (options.format->laid == report::Laid::AsItIs && command.HasOption(option)) {
      command.Refuse(option + ": the format " + std::string(options.format->name) +
                     " has no layout to choose, expected --format table");
    }
  }
}

}  // namespace

Subcommand AddCollect(CLI::App& app, CollectOptions& options) {
  Subcommand command(app, "collect", "Query the plug-in, print a report", kCollectExamples);
  AddInputs(command, options);
  AddManyServers(command, options);
  AddQueries(command, options);
  AddSelection(command, options);
  AddFailOn(command, options);
  AddOutput(command, options);
  AddLayout(command, options);
  command.AddFile("--trace", "Where to record what crosses the plug-in's boundary", options.trace);
  AddLog(command, options);
  AddDiscretion(command, options);
  return command;
}

void CompleteCollect(const Subcommand& command, CollectOptions& options) {
  ChooseFormat(command, options);
  CompleteManyServers(command, options);
  CompleteQueries(command, options);
  RefuseLayoutOfOtherFormats(command, options);
  if (options.format->classes == report::Classes::ExactlyOne &&
      ClassesOf(QueriesOf(options)).size() != 1) {
    command.Refuse("--format " + std::string(options.format->name) +
                   " holds one class: ask for it with --class, one of " + ShortClassNames());
  }
}

}  // namespace strake::app
