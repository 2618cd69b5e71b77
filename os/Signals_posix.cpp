#include "os/Signals.h"

#include <array>
#include <atomic>
#include <csignal>
#include <ctime>
#include <pthread.h>
#include <unistd.h>

namespace strake::os {
namespace {

constexpr std::array<int, 4> kRequests{SIGINT, SIGTERM, SIGHUP, SIGQUIT};
constexpr std::array<int, 2> kWriteErrors{SIGPIPE, SIGXFSZ};

// timeout(1) sends its signal to the process and then to its group; a terminal
// that closes is told of by the system and by the shell.
constexpr long kSameRequestMilliseconds = 250;

struct State {
  pthread_t mainThread{};
  volatile std::sig_atomic_t holds = 0;
  volatile std::sig_atomic_t request = 0;  // the first one that arrived
  long requestTime = 0;
  bool closedPipeEnds = false;
};

State& TheState() {
  static State state;
  return state;
}

long Milliseconds() {
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<long>(now.tv_sec) * 1000 + now.tv_nsec / 1'000'000;
}

[[noreturn]] void DieBy(int signal) {
  (void)std::signal(signal, SIG_DFL);
  sigset_t set{};
  ::sigemptyset(&set);
  ::sigaddset(&set, signal);
  ::pthread_sigmask(SIG_UNBLOCK, &set, nullptr);
  (void)std::raise(signal);
  ::_exit(128 + signal);
}

[[noreturn]] void EndBy(int signal) {
  State& state = TheState();
  state.holds = state.holds + 1;  // what is ended may hold signals, too
  Unfinished::EndAll();
  DieBy(signal);
}

void OnRequest(int signal) {
  State& state = TheState();
  if (::pthread_equal(::pthread_self(), state.mainThread) == 0) {
    ::pthread_kill(state.mainThread, signal);  // which holds signals, or does not
    return;
  }
  if (state.request != 0) {
    if (Milliseconds() - state.requestTime > kSameRequestMilliseconds) {
      DieBy(signal);
    }
    return;
  }
  state.requestTime = Milliseconds();
  state.request = signal;
  if (state.holds == 0) {
    EndBy(signal);
  }
}

bool IsIgnored(int signal) {
  struct sigaction action {};
  ::sigaction(signal, nullptr, &action);
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): as the system declares it
  return action.sa_handler == SIG_IGN;
}

}  // namespace

SignalHold::SignalHold() noexcept {
  TheState().holds = TheState().holds + 1;
  std::atomic_signal_fence(std::memory_order_seq_cst);
}

SignalHold::~SignalHold() {
  std::atomic_signal_fence(std::memory_order_seq_cst);
  State& state = TheState();
  state.holds = state.holds - 1;
  if (state.holds == 0 && state.request != 0) {
    EndBy(state.request);
  }
}

void PrepareForSignals() {
  State& state = TheState();
  state.mainThread = ::pthread_self();
  state.closedPipeEnds = !IsIgnored(SIGPIPE);
  for (const int signal : kWriteErrors) {
    (void)std::signal(signal, SIG_IGN);
  }
  for (const int signal : kRequests) {
    if (!IsIgnored(signal)) {
      struct sigaction action {};
      // NOLINTNEXTLINE(cppcoreguidelines-pro-type-union-access): as the system declares it
      action.sa_handler = OnRequest;
      // Not held back while it is handled: a second one ends at once.
      action.sa_flags = static_cast<int>(SA_RESTART | SA_NODEFER);
      ::sigaction(signal, &action, nullptr);
    }
  }
}

void EndByClosedPipe() {
  if (TheState().closedPipeEnds) {
    EndBy(SIGPIPE);
  }
}

}  // namespace strake::os
