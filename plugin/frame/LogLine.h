// Log lines: a message is given as its parts and put together only when
// somebody will read it.
#pragma once

#include "plugin/frame/Text.h"
#include "plugin/host/TRootObject.h"

#include <string>

namespace strake {

// The line that is being put together. It keeps its memory from line to line,
// for lines are most of what a query makes; there are no threads, and putting a
// line together logs nothing.
struct LineInTheMaking {
  // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): see above.
  static std::string text;
};

// The logging core of every owner: the host's core logger gets the line, unless
// it is empty or the gate (what registration returned) is null.
inline void LogLine(const void* gate, int level, const std::string& line) {
  if (gate != nullptr && !line.empty()) {
    NVELKZEV20::TRootObject::GetCoreLogger()->Log(level, line);
  }
}

// The same of a line that is put together here, if the gate lets it through.
template <typename... Parts>
void LogLine(const void* gate, int level, const Parts&... parts) {
  if (gate != nullptr) {
    SetText(LineInTheMaking::text, parts...);
    LogLine(gate, level, LineInTheMaking::text);
  }
}

}  // namespace strake
