// How signals end the process.
#pragma once

namespace strake::os {

// Something that a signal must not leave as it is.
class Unfinished {
 public:
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  virtual ~Unfinished() = default;

  // Runs in the middle of anything but a SignalHold, so it makes only calls that
  // are safe in a signal handler.
  virtual void EndBySignal() noexcept = 0;

  // Ends whatever has entered, the latest first.
  static void EndAll() noexcept;

 protected:
  Unfinished() = default;
  // From here on a signal ends it. The last constructor to run calls it, and the
  // first destructor calls Leave.
  void Enter() noexcept;
  void Leave() noexcept;

 private:
  Unfinished* fNext = nullptr;
};

// A signal that arrives while one lives takes effect when the last one is gone.
class SignalHold {
 public:
  SignalHold() noexcept;
  SignalHold(const SignalHold&) = delete;
  SignalHold& operator=(const SignalHold&) = delete;
  ~SignalHold();
};

// From here on a request to end (SIGINT, SIGTERM, SIGHUP, SIGQUIT) ends what is
// unfinished, then the process, by that very signal; a second one, a while
// later, ends the process at once. A request that the parent process ignores
// stays ignored. A reader that went away and a file that grows too large are
// errors of the write.
void PrepareForSignals();

// Ends what is unfinished and the process as a write to a closed pipe does.
// Returns when the parent process ignores that, or without PrepareForSignals.
void EndByClosedPipe();

}  // namespace strake::os
