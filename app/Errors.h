// How a run ends: the exit statuses, and the two ways in which it can fail.
#pragma once

#include <stdexcept>

namespace strake::app {

inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;       // the run failed
inline constexpr int kExitDifferences = 1;  // of diff: there are some
inline constexpr int kExitRefused = 2;      // wrong usage, or an input that is refused
inline constexpr int kExitFindings = 3;     // there are findings that --fail-on is about

// A command line that is refused: one line that says what was expected.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A run that failed: one line that says what and where.
class RunError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace strake::app
