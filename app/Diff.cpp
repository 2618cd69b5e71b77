#include "app/Diff.h"

#include "app/Errors.h"
#include "app/Output.h"
#include "app/Server.h"
#include "os/InputFile.h"

#include <string>

namespace strake::app {
namespace {

std::string NameOf(const std::filesystem::path& file) {
  return file == kStandardInput ? "standard input" : file.string();
}

report::ReadReport Read(const std::filesystem::path& file) {
  const std::string name = NameOf(file);
  return report::ParseReport(file == kStandardInput
                                 ? os::ReadInput(stdin, name, report::kMostReportBytes)
                                 : os::ReadInput(file, report::kMostReportBytes),
                             name);
}

}  // namespace

int Diff(const DiffOptions& options) {
  const report::ReadReport before = Read(options.before);
  const report::ReadReport after = Read(options.after);
  const compare::DiffReport diff{{NameOf(options.before), &before},
                                 {NameOf(options.after), &after},
                                 compare::Compare(before, after, options.tolerancePercent),
                                 STRAKE_VERSION};
  WriteOutput(options.output,
              [&options, &diff](const report::Sink& sink) { options.write(diff, sink); });
  return diff.differences.empty() ? kExitDone : kExitDifferences;
}

}  // namespace strake::app
