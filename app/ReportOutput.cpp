#include "app/ReportOutput.h"

#include "app/Messages.h"
#include "app/Output.h"
#include "os/Terminal.h"

#include <cstddef>
#include <optional>

namespace strake::app {
namespace {

// Those that somebody has to look at.
void TellFindings(const report::Report& report) {
  for (const report::Finding& finding : report.Findings()) {
    if (finding.severity != report::Severity::Info) {
      TellFinding(finding);
    }
  }
}

}  // namespace

report::Layout LayoutOfTerminal(report::Layout layout) {
  if (os::StandardOutputShowsColour()) {
    layout.colour = report::Colour::Terminal;
  }
  if (const std::optional<os::TerminalSize> size = os::StandardOutputSize()) {
    layout.columns = size->columns;
  }
  return layout;
}

std::optional<std::string> NoSuchSensor(const report::Report& report,
                                        const CollectOptions& options) {
  if (!options.selection.sensor || !report.Sensors().empty() || options.quiet) {
    return std::nullopt;
  }
  return "--sensor: no sensor is called '" + *options.selection.sensor + "'";
}

void WriteReport(const report::Report& report, const CollectOptions& options,
                 os::OutputFile* file) {
  const report::Format& format = *options.format;
  const report::Layout layout{.order = options.order, .header = options.header};
  if (file == nullptr) {
    WriteToStandardOutput(
        [&](const report::Sink& sink) { format.write(report, LayoutOfTerminal(layout), sink); });
  } else {
    WriteToFile(*file, [&](const report::Sink& sink) { format.write(report, layout, sink); });
  }
  if (format.findings == report::FindingsGo::ToStandardError && !options.quiet) {
    TellFindings(report);
  }
}

}  // namespace strake::app
