#include "app/LogWriter.h"

#include "app/TextEscape.h"

namespace strake::app {

void LogWriter::Write(int level, const std::string& message) {
  if (level > fHighestLevel) {
    return;
  }
  const std::string line = "[" + std::to_string(level) + "] " + EscapeForPeople(message) + "\n";
  if (fFile != nullptr) {
    fFile->Write(line);
  } else {
    WriteStandardError(line);
  }
}

}  // namespace strake::app
