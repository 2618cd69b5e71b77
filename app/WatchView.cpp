#include "app/WatchView.h"

#include "app/ReportOutput.h"
#include "os/OutputFile.h"
#include "os/Terminal.h"
#include "report/TableReport.h"
#include "report/TableText.h"
#include "report/Timestamp.h"

#include <algorithm>
#include <utility>

namespace strake::app {
namespace {

constexpr std::size_t kMostNames = 3;

// "1 added: Fan 1 (VELKSG_SP_NumericSensor) on SP 2".
std::string NamesText(const std::vector<std::string>& names, std::string_view what) {
  std::string text = std::to_string(names.size()).append(" ").append(what).append(": ");
  for (std::size_t index = 0; index < std::min(names.size(), kMostNames); ++index) {
    text.append(index == 0 ? "" : ", ").append(names[index]);
  }
  return names.size() > kMostNames ? text.append(", ...") : text;
}

std::string ChangesText(const compare::Changes& changes) {
  std::string text;
  if (changes.values > 0) {
    report::AppendListed(text, report::Counted(changes.values, "value changed", "values changed"));
  }
  if (changes.findings > 0) {
    report::AppendListed(text, report::Counted(changes.findings, "new finding", "new findings"));
  }
  if (!changes.added.empty()) {
    report::AppendListed(text, NamesText(changes.added, "added"));
  }
  if (!changes.gone.empty()) {
    report::AppendListed(text, NamesText(changes.gone, "gone"));
  }
  return text.empty() ? "nothing changed" : text;
}

std::unique_ptr<Screen> MakeScreen() {
  return os::StandardOutputCanRedraw() ? std::make_unique<Screen>(Screen::Means{
                                             os::WriteStandardOutput, os::TryWriteStandardOutput})
                                       : nullptr;
}

}  // namespace

WatchView::WatchView(const WatchOptions& options) : fOptions(options), fScreen(MakeScreen()) {}

void WatchView::AddLogLine(std::string_view line) {
  if (fScreen) {
    fLogLines += line;
  } else {
    os::WriteStandardError(line);
  }
}

void WatchView::Show(const compare::Round& round, const compare::Round* before) {
  const compare::Changes changes =
      before == nullptr ? compare::Changes{}
                        : compare::ChangesBetween(*before, round, fOptions.tolerancePercent);
  report::Layout layout{.order = fOptions.collect.order, .header = fOptions.collect.header};
  layout = LayoutOfTerminal(layout);
  layout.marks = &changes.marks;
  std::string text;
  const report::Sink sink = [&text](std::string_view piece) { text += piece; };
  report::TableText heading(layout, sink);
  heading.Line(0,
               report::Timestamp(round.report.Facts().collectedAt) + ", round " +
                   std::to_string(++fRounds) + ": " +
                   (before == nullptr ? "the first" : ChangesText(changes)),
               report::Shade::Heading);
  heading.Flush();
  text.append(std::exchange(fLogLines, {})).append("\n");
  report::WriteTable(round.report, layout, sink);
  if (fScreen) {
    const auto size = os::StandardOutputSize();
    fScreen->Draw(text, size ? size->rows : 0);
    fLast = std::move(text);
  } else {
    os::WriteStandardOutput(fRounds == 1 ? text : "\n" + text);
  }
}

void WatchView::Complete() {
  if (fScreen) {
    fScreen.reset();
    os::WriteStandardOutput(fLast);
  }
}

}  // namespace strake::app
