#include "app/LogWriter.h"

#include "app/TextEscape.h"

#include <cstdio>

namespace strake::app {

void LogWriter::Write(int level, const std::string& message) {
  if (level > fHighestLevel) {
    return;
  }
  const std::string line = "[" + std::to_string(level) + "] " + EscapeForPeople(message) + "\n";
  if (fFile != nullptr) {
    fFile->Write(line);
  } else {
    std::fputs(line.c_str(), stderr);
  }
}

}  // namespace strake::app
