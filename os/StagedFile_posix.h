// A file under construction, that is not to be seen before it is complete. For
// the sources of this folder.
#pragma once

#include "os/Descriptor_posix.h"

#include <array>
#include <sys/stat.h>

namespace strake::os {

class StagedFile {
 public:
  enum class Place {
    Unnamed,  // in the folder without a name, or Named where the file system has no such files
    Named,    // in the folder as ".strake-PID-N"
    Memory,   // nowhere: its bytes can only be copied
  };

  // The folder must outlive it. Throws std::system_error.
  StagedFile(const Descriptor& folder, Place place, mode_t mode);
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;
  ~StagedFile() { Discard(); }

  [[nodiscard]] int Number() const noexcept { return fFile.Number(); }

  // Its owner and mode become the old file's, as far as this user may give them
  // and the mask lets them: nobody gains access who had none. Throws
  // std::system_error.
  void TakeOver(const struct stat& old, mode_t mask);

  // The rest is safe in a signal handler; what can fail gives the error, 0 for none.

  // The folder's NAME, new or instead of another file, is this one.
  int MoveTo(const char* name) noexcept;
  // The other file's content is this one's.
  [[nodiscard]] int CopyTo(int other) const noexcept;
  // It has no name any more, unless it was moved.
  void Discard() noexcept;

 private:
  using FileName = std::array<char, 48>;

  int OpenUnnamed(mode_t mode) noexcept;
  int OpenNamed(mode_t mode) noexcept;
  template <typename Attempt>
  int FindName(const Attempt& attempt) noexcept;

  const Descriptor& fFolder;
  Descriptor fFile;
  FileName fName{};        // empty: none
  FileName fSystemName{};  // of the descriptor
};

}  // namespace strake::os
