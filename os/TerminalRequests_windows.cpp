#include "os/Handle_windows.h"
#include "os/Terminal.h"
#include "os/TerminalRequests.h"

#include <algorithm>
#include <utility>

namespace strake::os {
namespace {

// A console tells of its size only who reads its keys.
constexpr std::chrono::milliseconds kInterval{100};

std::pair<std::size_t, std::size_t> Size() {
  const std::optional<TerminalSize> size = StandardOutputSize();
  return size ? std::pair(size->columns, size->rows) : std::pair<std::size_t, std::size_t>();
}

}  // namespace

class TerminalRequests::State {
 public:
  std::pair<std::size_t, std::size_t> size = Size();
};

TerminalRequests::TerminalRequests() : fState(std::make_unique<State>()) {}
TerminalRequests::~TerminalRequests() = default;

TerminalRequest TerminalRequests::Wait(Clock::time_point until) const {
  for (;;) {
    if (const auto before = std::exchange(fState->size, Size()); before != fState->size) {
      return TerminalRequest::Redraw;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
    if (left.count() <= 0) {
      return TerminalRequest::None;
    }
    ::Sleep(static_cast<DWORD>(std::min(left, kInterval).count()));
  }
}

// Nothing stops a process here.
void TerminalRequests::Stop() {}

}  // namespace strake::os
