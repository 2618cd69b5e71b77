// The options of `strake diff`.
#include "app/Input.h"
#include "app/Percentage.h"
#include "app/Subcommands.h"
#include "os/FileName.h"
#include "text/OrList.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace strake::app {
namespace {

constexpr const char* kDiffExamples =
    R"(Compares reports of 'strake collect --format json', instance by instance. Clocks
that went on with the time between them are the same. A secret that differs is
told and not shown.

Examples:
  strake diff yesterday.json today.json
  strake collect --format json | strake diff yesterday.json - --tolerance 10

Exit status: 0 no differences, 1 there are some, 2 wrong usage or a report that is
refused.)";

struct NamedWriter {
  std::string_view name;
  DiffWriter write;
};

constexpr std::array<NamedWriter, 2> kWriters{{
    {"table", compare::WriteDiffTable},
    {"json", compare::WriteDiffJson},
}};

}  // namespace

Subcommand AddDiff(CLI::App& app, DiffOptions& options) {
  Subcommand command(app, "diff", "Compare two reports", kDiffExamples);
  command
      .AddValue("before", "BEFORE", "A report as JSON; - is standard input",
                [&options](const std::string& value) { options.before = os::FileNamed(value); })
      .Required()
      .NamesFile();
  command
      .AddValue("after", "AFTER", "A later one",
                [&options](const std::string& value) { options.after = os::FileNamed(value); })
      .Required()
      .NamesFile();
  command
      .AddValue("--tolerance", "PERCENT",
                "Readings that changed by no more are the same; default: 0",
                [&options](const std::string& value) {
                  options.tolerancePercent = ParsePercentage(value).value_or(0);
                })
      .Check(RefusePercentage);
  command
      .AddValue("--format", "FORMAT",
                text::OrList(kWriters, &NamedWriter::name) + "; default: table",
                [&options](const std::string& value) {
                  options.write = std::ranges::find(kWriters, value, &NamedWriter::name)->write;
                })
      .OneOf(text::Names(kWriters, &NamedWriter::name), "format");
  command.AddFile("--output", "Where the differences go; default: standard output", options.output);
  return command;
}

void CompleteDiff(const Subcommand& command, const DiffOptions& options) {
  if (options.before == kStandardInput && options.after == kStandardInput) {
    command.Refuse("both reports are standard input");
  }
}

}  // namespace strake::app
