// A file that appears whole or not at all: it is written beside its target and
// renamed over it when it is complete.
#pragma once

#include "os/OutputTarget.h"

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace strake::os {

// A file that cannot be written: one line that says which and why.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Privacy {
  Owner,  // mode 0600 from the first byte: the file can hold secrets
  Usual,  // as the umask says
};

class OutputFile {
 public:
  // Throws OutputError: the file cannot be written.
  OutputFile(const std::filesystem::path& name, Privacy privacy);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  // A file that is not complete disappears; its target stays as it was.
  ~OutputFile();

  // Never fails: the first failure is kept for Complete, because the writer can
  // be a call out of the plug-in.
  void Write(std::string_view bytes);

  // Throws OutputError: not everything could be written.
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

// Throws OutputError: not everything could be written.
void WriteStandardOutput(std::string_view bytes);

// When standard error takes nothing, nobody is left to tell.
void WriteStandardError(std::string_view bytes);

}  // namespace strake::os
