// Writes the plug-in's log lines.
#pragma once

#include "os/OutputFile.h"

#include <string>

namespace strake::app {

class LogWriter {
 public:
  // Null: standard error. The file must outlive the writer.
  LogWriter(os::OutputFile* file, int highestLevel) : fFile(file), fHighestLevel(highestLevel) {}

  // "[LEVEL] MESSAGE" on one line; drops what lies above the highest level.
  void Write(int level, const std::string& message);

 private:
  os::OutputFile* fFile;
  int fHighestLevel;
};

}  // namespace strake::app
