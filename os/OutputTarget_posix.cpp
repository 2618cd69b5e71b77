#include "os/OutputTarget_posix.h"

#include "os/FileIdentity.h"
#include "os/Signals.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/xattr.h>
#include <system_error>

namespace strake::os {
namespace {

namespace fs = std::filesystem;

constexpr int kWriteFlags = O_WRONLY | O_CLOEXEC | O_NOCTTY;
constexpr mode_t kOwnerMode = 0600;

[[noreturn]] void Fail(int error) { throw std::system_error(error, std::generic_category()); }

Descriptor OpenFolder(const fs::path& folder) {
  return Descriptor(
      ::open(folder.empty() ? "." : folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

// Where the system found an open file.
void Locate(OutputTarget& target) {
  std::error_code error;
  const fs::path file =
      fs::read_symlink("/proc/self/fd/" + std::to_string(target.existing.Number()), error);
  Descriptor folder = error ? Descriptor() : OpenFolder(file.parent_path());
  struct stat named {};
  if (folder.IsOpen() &&
      ::fstatat(folder.Number(), file.filename().c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
      named.st_dev == target.status.st_dev && named.st_ino == target.status.st_ino) {
    target.folder = std::move(folder);
    target.name = file.filename();
  }
}

bool IsMountPoint(const OutputTarget& target) {
  struct statx status {};
  return ::statx(target.existing.Number(), "", AT_EMPTY_PATH, 0, &status) == 0 &&
         (status.stx_attributes & STATX_ATTR_MOUNT_ROOT) != 0;
}

// In a sticky folder a name is its owner's, the folder's owner's and root's to give.
bool IsHeldByFolder(const OutputTarget& target) {
  struct stat folder {};
  const uid_t user = ::geteuid();
  return ::fstat(target.folder.Number(), &folder) == 0 && (folder.st_mode & S_ISVTX) != 0 &&
         user != 0 && user != folder.st_uid && user != target.status.st_uid;
}

bool HasAccessList(const OutputTarget& target) {
  return ::fgetxattr(target.existing.Number(), "system.posix_acl_access", nullptr, 0) > 0;
}

// A link that leads nowhere: the system creates what it leads to, which is taken
// away again until the file is complete.
void FollowToNewFile(OutputTarget& target, const fs::path& link) {
  const SignalHold hold;
  target.existing = Descriptor(::open(link.c_str(), kWriteFlags | O_CREAT, kOwnerMode));
  if (!target.existing.IsOpen() || ::fstat(target.existing.Number(), &target.status) != 0) {
    Fail(errno);
  }
  Locate(target);
  if (target.folder.IsOpen() && S_ISREG(target.status.st_mode) && target.status.st_size == 0 &&
      ::unlinkat(target.folder.Number(), target.name.c_str(), 0) == 0) {
    target.existing = Descriptor();
  }
}

void FindNewFile(OutputTarget& target, const fs::path& name) {
  std::error_code ignored;
  if (fs::is_symlink(fs::symlink_status(name, ignored))) {
    FollowToNewFile(target, name);
    return;
  }
  target.folder = OpenFolder(name.parent_path());
  if (!target.folder.IsOpen()) {
    Fail(errno);
  }
  target.name = name.filename();
  if (target.name.empty()) {
    Fail(EISDIR);
  }
}

}  // namespace

OutputTarget OpenOutputTarget(const fs::path& name) {
  OutputTarget target;
  const std::optional<int> descriptor = NamedDescriptor(name);
  target.existing = Descriptor(descriptor ? ::fcntl(*descriptor, F_DUPFD_CLOEXEC, 0)
                                          : ::open(name.c_str(), kWriteFlags));
  if (!target.existing.IsOpen()) {
    if (errno != ENOENT) {
      Fail(errno);
    }
    FindNewFile(target, name);
  }
  if (target.existing.IsOpen()) {
    if (::fstat(target.existing.Number(), &target.status) != 0) {
      Fail(errno);
    }
    target.isStream = descriptor || !S_ISREG(target.status.st_mode);
    if (!target.isStream) {
      Locate(target);
      target.canBeReplaced = target.folder.IsOpen() && !IsMountPoint(target) &&
                             !IsHeldByFolder(target) && !HasAccessList(target);
    }
  }
  return target;
}

}  // namespace strake::os
