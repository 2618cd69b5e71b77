// A file that appears whole or not at all: it is written beside its target and
// renamed over it when it is complete.
#pragma once

#include "app/OutputTarget.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace strake::app {

enum class Privacy {
  Owner,  // mode 0600 from the first byte: the file can hold secrets
  Usual,  // as the umask says
};

class OutputFile {
 public:
  // Throws RunError: the file cannot be written.
  OutputFile(const std::filesystem::path& name, Privacy privacy);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  // A file that is not complete disappears; its target stays as it was.
  ~OutputFile();

  // Never fails: the first failure is kept for Complete, because the writer can
  // be a call out of the plug-in.
  void Write(std::string_view bytes);

  // Throws RunError: not everything could be written.
  void Complete();

 private:
  void OpenBeside(Privacy privacy);
  void Flush();
  [[noreturn]] void Fail(int error) const;

  std::filesystem::path fName;  // as it was given, for messages
  OutputTarget fTarget;
  std::filesystem::path fTemporary;  // empty: the target itself is written
  int fDescriptor = -1;
  int fError = 0;
  std::string fPending;
};

// Throws RunError: not everything could be written.
void WriteStandardOutput(std::string_view bytes);

// When standard error takes nothing, nobody is left to tell.
void WriteStandardError(std::string_view bytes);

}  // namespace strake::app
