#include "app/ReportOutput.h"

#include "app/Messages.h"
#include "os/Terminal.h"

#include <cstddef>
#include <optional>
#include <string>

namespace strake::app {
namespace {

// Writes a report in large pieces: a writer hands over small ones.
void WriteToStandardOutput(const report::Report& report, const CollectOptions& options) {
  constexpr std::size_t kPiece = 65536;
  const report::Colour colour =
      os::StandardOutputShowsColour() ? report::Colour::Terminal : report::Colour::Never;
  std::string pending;
  report::Layout layout{.colour = colour, .order = options.order, .header = options.header};
  if (const std::optional<std::size_t> columns = os::StandardOutputColumns()) {
    layout.columns = *columns;
  }
  options.format->write(report, layout, [&pending](std::string_view text) {
    pending += text;
    if (pending.size() >= kPiece) {
      os::WriteStandardOutput(pending);
      pending.clear();
    }
  });
  os::WriteStandardOutput(pending);
}

// Those that somebody has to look at.
void TellFindings(const report::Report& report) {
  for (const report::Finding& finding : report.Findings()) {
    if (finding.severity != report::Severity::Info) {
      TellWarning(finding.text);
    }
  }
}

}  // namespace

void WriteReport(const report::Report& report, const CollectOptions& options,
                 os::OutputFile* file) {
  const report::Format& format = *options.format;
  if (file == nullptr) {
    WriteToStandardOutput(report, options);
  } else {
    const report::Layout layout{.order = options.order, .header = options.header};
    format.write(report, layout, [file](std::string_view text) { file->Write(text); });
    file->Complete();
  }
  if (format.findings == report::FindingsGo::ToStandardError && !options.quiet) {
    TellFindings(report);
  }
}

}  // namespace strake::app
