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

// "1 value changed: Fan 1 on SP 2"; nothing of nothing.
void AppendNames(std::string& list, const std::vector<std::string>& names, std::string_view one,
                 std::string_view many) {
  if (names.empty()) {
    return;
  }
  std::string text = report::Counted(names.size(), one, many).append(": ");
  for (std::size_t index = 0; index < std::min(names.size(), kMostNames); ++index) {
    text.append(index == 0 ? "" : ", ").append(names[index]);
  }
  text.append(names.size() > kMostNames ? ", ..." : "");
  report::AppendListed(list, text);
}

std::string ChangesText(const compare::Changes& changes) {
  std::string text;
  AppendNames(text, changes.changed, "value changed", "values changed");
  AppendNames(text, changes.added, "instance added", "instances added");
  AppendNames(text, changes.gone, "instance gone", "instances gone");
  if (changes.findings > 0) {
    report::AppendListed(text, report::Counted(changes.findings, "new finding", "new findings"));
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
