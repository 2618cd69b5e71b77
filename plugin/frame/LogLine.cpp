#include "plugin/frame/LogLine.h"

#include "plugin/host/TRootObject.h"

namespace strake {

std::string& LineInTheMaking() {
  static std::string line;
  return line;
}

void WriteLogLine(int level, const std::string& message) {
  if (!message.empty()) {
    NVELKZEV20::TRootObject::GetCoreLogger()->Log(level, message);
  }
}

}  // namespace strake
