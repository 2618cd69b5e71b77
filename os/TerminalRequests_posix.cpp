#include "os/TerminalRequests.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <pthread.h>

namespace strake::os {

class TerminalRequests::State {
 public:
  State() noexcept {
    ::sigemptyset(&requests);
    ::sigaddset(&requests, SIGWINCH);
    ::sigaddset(&requests, SIGTSTP);
    ::pthread_sigmask(SIG_BLOCK, &requests, &before);
  }
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() { ::pthread_sigmask(SIG_SETMASK, &before, nullptr); }

  sigset_t requests{};
  sigset_t before{};
};

TerminalRequests::TerminalRequests() : fState(std::make_unique<State>()) {}
TerminalRequests::~TerminalRequests() = default;

TerminalRequest TerminalRequests::Wait(Clock::time_point until) const {
  for (;;) {
    const auto left = std::max(until - Clock::now(), Clock::duration::zero());
    const auto seconds = std::chrono::floor<std::chrono::seconds>(left);
    const auto rest = std::chrono::ceil<std::chrono::nanoseconds>(left - seconds);
    const timespec most{.tv_sec = static_cast<std::time_t>(seconds.count()),
                        .tv_nsec = static_cast<long>(rest.count())};
    const int signal = ::sigtimedwait(&fState->requests, nullptr, &most);
    if (signal == SIGWINCH) {
      return TerminalRequest::Redraw;
    }
    if (signal == SIGTSTP) {
      return TerminalRequest::Stop;
    }
    if (errno == EAGAIN) {
      return TerminalRequest::None;
    }
  }
}

// Without anybody who could continue it the system does not stop a process so.
void TerminalRequests::Stop() {
  sigset_t stop{};
  ::sigemptyset(&stop);
  ::sigaddset(&stop, SIGTSTP);
  (void)std::raise(SIGTSTP);
  ::pthread_sigmask(SIG_UNBLOCK, &stop, nullptr);
  ::pthread_sigmask(SIG_BLOCK, &stop, nullptr);
}

}  // namespace strake::os
