#include "app/WatchView.h"

#include "app/ReportOutput.h"
#include "os/OutputFile.h"
#include "os/Terminal.h"
#include "report/TableReport.h"
#include "report/TableText.h"
#include "report/Timestamp.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <thread>
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
  if (changes.findings > 0) {
    report::AppendListed(text, report::Counted(changes.findings, "new finding", "new findings"));
  }
  AppendNames(text, changes.changed, "value changed", "values changed");
  AppendNames(text, changes.added, "instance added", "instances added");
  AppendNames(text, changes.gone, "instance gone", "instances gone");
  return text.empty() ? "nothing changed" : text;
}

std::unique_ptr<Screen> MakeScreen() {
  return os::StandardOutputCanRedraw() ? std::make_unique<Screen>(Screen::Means{
                                             os::WriteStandardOutput, os::TryWriteStandardOutput})
                                       : nullptr;
}

}  // namespace

WatchView::WatchView(const WatchOptions& options, const std::string& server)
    : fOptions(options), fScreen(MakeScreen()) {
  if (fScreen) {
    fRequests.emplace();
    fLast = "Collecting " + text::EscapeForPeople(server) + " ...\n";
    Draw();
  }
}

WatchView::~WatchView() {
  fScreen.reset();
  os::WriteStandardError(fLogLines);
}

void WatchView::AddLogLine(std::string_view line) {
  if (fScreen && os::StandardErrorCanErase()) {
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
    fLast = std::move(text);
    Draw();
  } else {
    os::WriteStandardOutput(fRounds == 1 ? text : "\n" + text);
  }
}

void WatchView::Draw() const {
  const auto size = os::StandardOutputSize();
  fScreen->Draw(fLast, size ? size->rows : 0);
}

void WatchView::WaitUntil(std::chrono::steady_clock::time_point time) {
  if (!fScreen) {
    std::this_thread::sleep_until(time);
    return;
  }
  for (auto request = fRequests->Wait(time); request != os::TerminalRequest::None;
       request = fRequests->Wait(time)) {
    if (request == os::TerminalRequest::Stop) {
      fScreen->GiveBack();
      os::TerminalRequests::Stop();
      fScreen->TakeAgain();
    }
    Draw();
  }
}

void WatchView::Complete() {
  if (fScreen) {
    fScreen.reset();
    os::WriteStandardOutput(fLast);
  }
}

}  // namespace strake::app
