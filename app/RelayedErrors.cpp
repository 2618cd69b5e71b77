#include "app/RelayedErrors.h"

#include "app/Messages.h"
#include "os/OutputFile.h"
#include "text/TextEscape.h"

#include <algorithm>
#include <utility>

namespace strake::app {
namespace {

constexpr std::string_view kWarning = "warning: ";

}  // namespace

void RelayedErrors::Take(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = bytes.find('\n');
    const std::string_view piece = bytes.substr(0, end);
    const std::size_t room = kMostLineBytes - fLine.size();
    fLine.append(piece.substr(0, room));
    fIsCut = fIsCut || piece.size() > room;
    if (end == std::string_view::npos) {
      return;
    }
    EndLine();
    bytes.remove_prefix(end + 1);
  }
}

void RelayedErrors::EndLine() {
  std::string line = std::exchange(fLine, {});
  if (std::exchange(fIsCut, false)) {
    line += "...";
  }
  if (const auto message = TakeMessage()) {
    Relay(std::string(kMessagePrefix).append(*message));
  }
  const std::string_view text = line;
  if (text.starts_with(kMessagePrefix) &&
      !text.substr(kMessagePrefix.size()).starts_with(kWarning)) {
    fMessage = line.substr(kMessagePrefix.size());
  } else {
    Relay(line);
  }
}

std::optional<std::string> RelayedErrors::TakeMessage() { return std::exchange(fMessage, {}); }

void RelayedErrors::End() {
  if (!fLine.empty()) {
    EndLine();
  }
  if (const auto message = TakeMessage()) {
    Relay(std::string(kMessagePrefix).append(*message));
  }
}

bool RelayedErrors::HasRoom(std::size_t size) {
  if (fRelayed > kMostBytes) {
    return false;
  }
  fRelayed += size;
  if (fRelayed > kMostBytes) {
    Tell("more of its standard error is left out");
    return false;
  }
  return true;
}

// The command's own messages stay recognizable as such.
void RelayedErrors::Relay(const std::string& line) {
  if (!HasRoom(line.size() + 1)) {
    return;
  }
  if (line.starts_with(kMessagePrefix)) {
    Tell(line.substr(kMessagePrefix.size()));
  } else {
    os::WriteStandardError(text::EscapeForPeople(fServer + ": " + line) + "\n");
  }
}

void RelayedErrors::Tell(const std::string& text) const {
  const std::string name = fServer + ": ";
  const bool isNamed = text.starts_with(name) || text.starts_with(text::EscapeForPeople(name));
  TellError(isNamed ? text : name + text);
}

}  // namespace strake::app
