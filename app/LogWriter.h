// Writes the plug-in's log lines.
#pragma once

#include "app/Progress.h"
#include "os/OutputFile.h"

#include <string>

namespace strake::app {

class LogWriter {
 public:
  // No file: standard error, where the progress, if any, gives way. Both must
  // outlive the writer.
  LogWriter(os::OutputFile* file, int highestLevel, Progress* progress)
      : fFile(file), fHighestLevel(highestLevel), fProgress(progress) {}

  // "[LEVEL] MESSAGE" on one line; drops what lies above the highest level.
  void Write(int level, const std::string& message);

 private:
  os::OutputFile* fFile;
  int fHighestLevel;
  Progress* fProgress;
};

}  // namespace strake::app
