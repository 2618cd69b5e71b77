// Writes the plug-in's log lines.
#pragma once

#include "app/OutputFile.h"

#include <string>

namespace strake::app {

class LogWriter {
 public:
  // Null: standard error. The file must outlive the writer.
  LogWriter(OutputFile* file, int highestLevel) : fFile(file), fHighestLevel(highestLevel) {}

  // "[LEVEL] MESSAGE" on one line; drops what lies above the highest level.
  void Write(int level, const std::string& message);

 private:
  OutputFile* fFile;
  int fHighestLevel;
};

}  // namespace strake::app
