// Shows the rounds of `strake watch`: drawn over each other where standard output
// is such a terminal, else one after the other.
#pragma once

#include "app/Screen.h"
#include "app/WatchOptions.h"
#include "compare/Changes.h"
#include "os/TerminalRequests.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace strake::app {

class WatchView {
 public:
  // The options must outlive it.
  WatchView(const WatchOptions& options, const std::string& server);
  WatchView(const WatchView&) = delete;
  WatchView& operator=(const WatchView&) = delete;
  // Gives the terminal back, and tells what log lines were not shown.
  ~WatchView();

  // Of the round that runs; where standard error is the screen, too, it is shown with
  // the round.
  void AddLogLine(std::string_view line);

  // The round before is null for the first one. Throws os::OutputError.
  void Show(const compare::Round& round, const compare::Round* before);

  // Until it is time for the next round; a terminal is served meanwhile.
  void WaitUntil(std::chrono::steady_clock::time_point time);

  // Gives the terminal back, with the last round on it.
  void Complete();

 private:
  void Draw() const;

  const WatchOptions& fOptions;
  std::unique_ptr<Screen> fScreen;                // null: rounds are appended
  std::optional<os::TerminalRequests> fRequests;  // of the screen
  std::uint64_t fRounds = 0;
  std::string fLogLines;
  std::string fLast;  // what the screen shows, whole
};

}  // namespace strake::app
