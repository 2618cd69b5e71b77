#include "app/LogWriter.h"

#include "text/TextEscape.h"

namespace strake::app {

void LogWriter::Write(int level, const std::string& message) {
  if (level > fHighestLevel) {
    return;
  }
  std::string line = "[";
  line.append(std::to_string(level))
      .append("] ")
      .append(text::EscapeForPeople(message))
      .append("\n");
  fTake(line);
}

}  // namespace strake::app
