#include "app/Diff.h"

#include "app/Errors.h"
#include "app/Input.h"
#include "app/Output.h"

namespace strake::app {
namespace {

report::ReadReport Read(const std::filesystem::path& file) {
  return report::ParseReport(ReadWholeInput(file, report::kMostReportBytes), InputName(file));
}

}  // namespace

int Diff(const DiffOptions& options) {
  const report::ReadReport before = Read(options.before);
  const report::ReadReport after = Read(options.after);
  const compare::DiffReport diff{
      {InputName(options.before), &before},
      {InputName(options.after), &after},
      compare::Compare(compare::CollectionOf(before), compare::CollectionOf(after),
                       options.tolerancePercent),
      STRAKE_VERSION};
  WriteOutput(options.output,
              [&options, &diff](const report::Sink& sink) { options.write(diff, sink); });
  return diff.differences.empty() ? kExitDone : kExitDifferences;
}

}  // namespace strake::app
