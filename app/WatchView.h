// Shows the rounds of `strake watch`: drawn over each other where standard output
// is such a terminal, else one after the other.
#pragma once

#include "app/Screen.h"
#include "app/WatchOptions.h"
#include "compare/Changes.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace strake::app {

class WatchView {
 public:
  // The options must outlive it.
  explicit WatchView(const WatchOptions& options);

  // Of the round that runs; on a terminal it is shown with the round.
  void AddLogLine(std::string_view line);

  // The round before is null for the first one. Throws os::OutputError.
  void Show(const compare::Round& round, const compare::Round* before);

  // Gives the terminal back, with the last round on it.
  void Complete();

 private:
  const WatchOptions& fOptions;
  std::unique_ptr<Screen> fScreen;  // null: rounds are appended
  std::uint64_t fRounds = 0;
  std::string fLogLines;
  std::string fLast;  // what the screen shows, whole
};

}  // namespace strake::app
