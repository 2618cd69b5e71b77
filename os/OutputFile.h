// A file that appears whole or not at all: it is written unseen, and takes its
// target's place when it is complete.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace strake::os {

// A file that cannot be written: one line that says which and why.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

enum class Privacy {
  Owner,  // nobody but its owner may read it, from the first byte: it can hold secrets
  Usual,  // as the umask says
};

// What becomes of a file that is not complete when a signal ends the process.
enum class OnSignal { Discard, Complete };

// A file that is there already keeps its mode and owner; where this user may not
// give them, nobody gains access that had none. A target that cannot be replaced
// (a mount point, another user's file in a sticky folder) is written in place
// once everything is there to be written; a device, a FIFO or one of the process'
// own descriptors, as it comes.
class OutputFile {
 public:
  // Throws OutputError: the file cannot be written.
  OutputFile(const std::filesystem::path& name, Privacy privacy,
             OnSignal onSignal = OnSignal::Discard);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;
  // A file that is not complete disappears; its target stays as it was.
  ~OutputFile();

  // Never fails: the first failure is kept for Complete, because the writer can
  // be a call out of the plug-in. A signal finds either all of the bytes or none.
  void Write(std::string_view bytes);

  // Throws OutputError: not everything could be written.
  void Complete();

 private:
  class State;
  std::unique_ptr<State> fState;
};

// Throws OutputError: not everything could be written. Waits when standard output
// would block. A reader that went away ends the process, see EndByClosedPipe.
void WriteStandardOutput(std::string_view bytes);

// Safe in a signal handler: whoever reads it may be gone.
void TryWriteStandardOutput(std::string_view bytes) noexcept;

// When standard error takes nothing, nobody is left to tell.
void WriteStandardError(std::string_view bytes);

}  // namespace strake::os
