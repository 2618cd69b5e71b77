#include "app/Screen.h"

#include <algorithm>
#include <utility>

namespace strake::app {
namespace {

constexpr std::string_view kTopLeft = "\x1b[H";
constexpr std::string_view kEraseRestOfLine = "\x1b[K";
constexpr std::string_view kEraseBelow = "\x1b[J";

std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

}  // namespace

std::string Frame(std::string_view text, std::size_t rows) {
  auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
  lines += text.empty() || text.ends_with('\n') ? 0 : 1;
  const bool isCut = rows > 0 && lines > rows;
  const std::size_t shown = isCut ? rows - 1 : lines;
  std::string frame(kTopLeft);
  // The line's end stands before its text: behind the last one it would scroll.
  for (std::size_t line = 0; line < shown; ++line) {
    frame.append(line == 0 ? "" : "\r\n").append(TakeLine(text)).append(kEraseRestOfLine);
  }
  if (isCut) {
    frame.append(shown == 0 ? "" : "\r\n")
        .append("... ")
        .append(std::to_string(lines - shown))
        .append(" more lines")
        .append(kEraseRestOfLine);
  }
  return frame.append(kEraseBelow);
}

Screen::Screen(Means means) : fMeans(std::move(means)) {
  Enter();
  fMeans.write(kEnter);
}

Screen::~Screen() {
  Leave();
  fMeans.leave(kLeave);
}

void Screen::EndBySignal() noexcept { fMeans.leave(kLeave); }

}  // namespace strake::app
