#include "app/LogWriter.h"

#include "app/TextEscape.h"

namespace strake::app {

void LogWriter::Write(int level, const std::string& message) {
  if (level > fHighestLevel) {
    return;
  }
  std::string line = "[";
  line.append(std::to_string(level)).append("] ").append(EscapeForPeople(message)).append("\n");
  if (fFile != nullptr) {
    fFile->Write(line);
  } else {
    WriteStandardError(line);
  }
}

}  // namespace strake::app
