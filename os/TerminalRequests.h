// What a terminal asks of whoever draws on it.
#pragma once

#include <chrono>
#include <memory>

namespace strake::os {

enum class TerminalRequest {
  None,    // the time is up
  Redraw,  // its size changed
  Stop,    // to leave it to others for a while, as Ctrl-Z asks
};

// From its construction on, requests wait until they are asked for, those of
// Ctrl-Z too.
class TerminalRequests {
 public:
  using Clock = std::chrono::steady_clock;

  TerminalRequests();
  TerminalRequests(const TerminalRequests&) = delete;
  TerminalRequests& operator=(const TerminalRequests&) = delete;
  ~TerminalRequests();

  // Waits for one, or until it is time.
  [[nodiscard]] TerminalRequest Wait(Clock::time_point until) const;
  // Stops this process, unless nobody could continue it; returns when it goes on.
  static void Stop();

 private:
  class State;
  std::unique_ptr<State> fState;
};

}  // namespace strake::os
