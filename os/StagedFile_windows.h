// A file under construction, that is not to be seen before it is complete. For
// the sources of this folder.
#pragma once

#include "os/Handle_windows.h"

#include <filesystem>
#include <string>

namespace strake::os {

// Who may do what with a file.
class Access {
 public:
  // As the folder says.
  Access() = default;
  // Nobody but this user.
  static Access OfOwner();
  // As with a file that is there.
  static Access Of(HANDLE file);

  Access(Access&& other) noexcept;
  Access& operator=(Access&& other) noexcept;
  Access(const Access&) = delete;
  Access& operator=(const Access&) = delete;
  ~Access();

  [[nodiscard]] PSECURITY_DESCRIPTOR Descriptor() const noexcept { return fDescriptor; }

 private:
  PSECURITY_DESCRIPTOR fDescriptor = nullptr;  // the system's, in one piece
};

class StagedFile {
 public:
  // In the folder, as ".strake-PID-N". Throws std::system_error.
  StagedFile(const std::filesystem::path& folder, const Access& access);
  StagedFile(const StagedFile&) = delete;
  StagedFile& operator=(const StagedFile&) = delete;
  ~StagedFile() { Discard(); }

  [[nodiscard]] HANDLE File() const noexcept { return fFile.Get(); }

  // What can fail gives the error, 0 for none.

  // The name, new or instead of another file, is this one's.
  DWORD MoveTo(const wchar_t* name) noexcept;
  // The other file's content is this one's.
  [[nodiscard]] DWORD CopyTo(const wchar_t* name) noexcept;
  // It is gone, unless it was moved.
  void Discard() noexcept;

 private:
  DWORD Close() noexcept;

  std::wstring fName;
  bool fIsThere = false;
  bool fIsMarked = false;  // it goes when it is closed; not every file system can
  Handle fFile;
};

}  // namespace strake::os
