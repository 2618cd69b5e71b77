#include "plugin/frame/LogLine.h"

#include "plugin/host/TRootObject.h"

namespace strake {

void WriteLogLine(int level, const std::string& message) {
  if (!message.empty()) {
    NVELKZEV20::TRootObject::GetCoreLogger()->Log(level, message);
  }
}

}  // namespace strake
