// Writes the plug-in's log lines.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace strake::app {

// Is given a line with its end.
using TakeLine = std::function<void(std::string_view line)>;

class LogWriter {
 public:
  // What takes whole lines must outlive the writer.
  LogWriter(TakeLine take, int highestLevel)
      : fTake(std::move(take)), fHighestLevel(highestLevel) {}

  // "[LEVEL] MESSAGE" on one line; drops what lies above the highest level.
  void Write(int level, const std::string& message);

 private:
  TakeLine fTake;
  int fHighestLevel;
};

}  // namespace strake::app
