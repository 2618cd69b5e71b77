#include "os/StagedFile_posix.h"

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>

namespace strake::os {
namespace {

constexpr int kMostAttempts = 1000;
constexpr std::size_t kCopySize = std::size_t{16} * 1024;

// Text in a row, put together without the heap.
template <std::size_t Size>
class Line {
 public:
  explicit Line(std::array<char, Size>& room) : fRoom(room) { fRoom.fill('\0'); }
  Line& operator<<(std::string_view text) {
    for (const char byte : text) {
      fRoom.at(fLength++) = byte;
    }
    return *this;
  }
  Line& operator<<(int number) {
    std::array<char, 12> digits{};
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    return *this << std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data()));
  }

 private:
  std::array<char, Size>& fRoom;
  std::size_t fLength = 0;
};

[[noreturn]] void Fail(int error) { throw std::system_error(error, std::generic_category()); }

// What a file may allow whose group is another one now: who was of the old group
// may be one of the others, and the other way round.
mode_t ModeForAnotherGroup(mode_t mode) {
  const mode_t shared = (mode >> 3U) & mode & 07U;
  return (mode & 0700U) | (shared << 3U) | shared;
}

}  // namespace

StagedFile::StagedFile(const Descriptor& folder, Place place, mode_t mode) : fFolder(folder) {
  if (place == Place::Memory) {
    fFile = Descriptor(::memfd_create("strake", MFD_CLOEXEC));
  }
  if (place == Place::Unnamed) {
    fFile = Descriptor(OpenUnnamed(mode));
  }
  if (!fFile.IsOpen() && place != Place::Memory) {
    fFile = Descriptor(OpenNamed(mode));
  }
  if (!fFile.IsOpen()) {
    Fail(errno);
  }
}

// A file without a name gets one through the name of its descriptor.
int StagedFile::OpenUnnamed(mode_t mode) noexcept {
  const int number = ::openat(fFolder.Number(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, mode);
  if (number >= 0) {
    Line(fSystemName) << "/proc/self/fd/" << number;
    if (::access(fSystemName.data(), F_OK) != 0) {
      ::close(number);
      return -1;
    }
  }
  return number;
}

int StagedFile::OpenNamed(mode_t mode) noexcept {
  int number = -1;
  const int error = FindName([&](const char* name) {
    number =
        ::openat(fFolder.Number(), name, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    return number >= 0;
  });
  errno = error;
  return number;
}

template <typename Attempt>
int StagedFile::FindName(const Attempt& attempt) noexcept {
  for (int number = 0; number < kMostAttempts; ++number) {
    Line(fName) << ".strake-" << ::getpid() << "-" << number;
    if (attempt(fName.data())) {
      return 0;
    }
    if (errno != EEXIST) {
      break;
    }
  }
  fName.fill('\0');
  return errno;
}

void StagedFile::TakeOver(const struct stat& old, mode_t mask) {
  const int file = fFile.Number();
  struct stat made {};
  if (::fstat(file, &made) != 0) {
    Fail(errno);
  }
  mode_t mode = old.st_mode & mask;
  if ((made.st_uid != old.st_uid || made.st_gid != old.st_gid) &&
      ::fchown(file, old.st_uid, old.st_gid) != 0 && made.st_gid != old.st_gid &&
      ::fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0) {
    mode = ModeForAnotherGroup(mode);
  }
  // The folder's default list may let in somebody whom the old file did not.
  (void)::fremovexattr(file, "system.posix_acl_access");
  if (::fchmod(file, mode) != 0) {
    Fail(errno);
  }
}

int StagedFile::MoveTo(const char* name) noexcept {
  if (fName.front() == '\0') {
    const auto link = [this](const char* newName) {
      return ::linkat(AT_FDCWD, fSystemName.data(), fFolder.Number(), newName, AT_SYMLINK_FOLLOW) ==
             0;
    };
    if (link(name)) {
      return 0;
    }
    if (errno != EEXIST) {
      return errno;
    }
    if (const int error = FindName(link); error != 0) {
      return error;
    }
  }
  if (::renameat(fFolder.Number(), fName.data(), fFolder.Number(), name) != 0) {
    const int error = errno;
    Discard();
    return error;
  }
  fName.fill('\0');
  return 0;
}

// Room is asked for before the other file loses anything.
int StagedFile::CopyTo(int other) const noexcept {
  struct stat status {};
  if (::fstat(fFile.Number(), &status) != 0) {
    return errno;
  }
  if (status.st_size > 0 && ::fallocate(other, FALLOC_FL_KEEP_SIZE, 0, status.st_size) != 0 &&
      errno != EOPNOTSUPP && errno != ENOSYS) {
    return errno;
  }
  std::array<char, kCopySize> bytes{};
  for (off_t position = 0; position < status.st_size;) {
    const ssize_t count = ::pread(fFile.Number(), bytes.data(), bytes.size(), position);
    if (count <= 0) {
      return count == 0 ? EIO : errno;
    }
    if (const int error = WriteAll(other, bytes.data(), static_cast<std::size_t>(count));
        error != 0) {
      return error;
    }
    position += count;
  }
  return ::ftruncate(other, status.st_size) == 0 && ::fsync(other) == 0 ? 0 : errno;
}

void StagedFile::Discard() noexcept {
  if (fName.front() != '\0') {
    ::unlinkat(fFolder.Number(), fName.data(), 0);
    fName.fill('\0');
  }
}

}  // namespace strake::os
