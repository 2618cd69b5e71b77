// How far a run is, on one line of a terminal that is written over and erased.
#pragma once

#include "os/Signals.h"
#include "platform/boundary/BoundaryObserver.h"

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace strake::app {

// Shows nothing in the first second. It is told of calls, and has no clock of
// its own: while one call takes its time, the line stays as it is.
class Progress : public platform::BoundaryObserver, private os::Unfinished {
 public:
  using Clock = std::chrono::steady_clock;
  struct Means {
    std::function<Clock::time_point()> now;
    std::function<void(std::string_view)> write;
  };

  Progress(std::size_t queries, Means means);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  // Erases what is shown.
  ~Progress() override;

  // Takes the line away, for something else that is to be written; the next
  // call brings it back.
  void Erase();

  platform::Fault BeforeCall(platform::BoundaryCall call) override;
  void OnQuery(const std::vector<std::string>& classes) override;
  void OnDiscoverSPs(int result) override;
  void OnDotSend(const platform::DotSend& send) override;
  void OnKestleSend(const platform::KestleSend& send) override;

 private:
  // A signal takes the line away, too; what writes is safe in its handler.
  void EndBySignal() noexcept override;
  void Show();
  [[nodiscard]] std::string Line() const;

  Means fMeans;
  Clock::time_point fNext;  // when the line is written again
  bool fIsShown = false;
  std::size_t fQueries;
  std::size_t fQuery = 0;
  unsigned int fProcessors = 0;
  unsigned int fProcessor = 0;  // from 1; 0: none answered or failed yet
  unsigned long fSends = 0;
};

}  // namespace strake::app
