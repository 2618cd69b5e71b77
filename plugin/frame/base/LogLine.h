// Log lines. Each owner of a gate (what registration returned; null: closed) has
// wrappers of its own in front of this core.
#pragma once

#include "plugin/frame/base/Text.h"
#include "plugin/host/TRootObject.h"

#include <cstddef>
#include <string>

namespace strake {

// The logging core of every owner: the host's core logger gets the message,
// unless that is empty or the gate closed.
inline void LogMessage(const void* gate, int level, const std::string& message) {
  if (gate != nullptr && !message.empty()) {
    NVELKZEV20::TRootObject::GetCoreLogger()->Log(level, message);
  }
}

// A line out of its parts. All but a few lines fit the room that is asked for.
template <typename... Parts>
std::string MakeLine(const Parts&... parts) {
  constexpr std::size_t kRoom = 100;
  std::string line;
  line.reserve(kRoom);
  SetText(line, parts...);
  return line;
}

// A line given as its parts. Behind a closed gate nothing is put together.
template <typename... Parts>
void LogLine(const void* gate, int level, const Parts&... parts) {
  if (gate != nullptr) {
    LogMessage(gate, level, MakeLine(parts...));
  }
}

}  // namespace strake
