#include "app/Diff.h"

#include "app/Errors.h"
#include "app/Server.h"
#include "app/Trail.h"
#include "os/InputFile.h"
#include "os/OutputFile.h"

#include <memory>
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
  const bool isFile = options.output && *options.output != kStandardInput;
  const std::unique_ptr<os::OutputFile> file =
      OpenOutput(isFile ? options.output : std::nullopt, os::Privacy::Usual);
  options.write(diff, [&file](std::string_view text) {
    if (file) {
      file->Write(text);
    } else {
      os::WriteStandardOutput(text);
    }
  });
  if (file) {
    file->Complete();
  }
  return diff.differences.empty() ? kExitDone : kExitDifferences;
}

}  // namespace strake::app
