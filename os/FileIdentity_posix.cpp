#include "os/FileIdentity.h"

#include <charconv>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace strake::os {
namespace {

namespace fs = std::filesystem;

// As the system's own limit.
constexpr int kMostLinks = 40;

fs::path FolderOf(const fs::path& name) {
  return name.has_parent_path() ? name.parent_path() : fs::path(".");
}

bool IsOwnDescriptorFolder(const fs::path& folder) {
  std::error_code error;
  const fs::path process = fs::canonical("/proc/self", error);
  return !error && folder.filename() == "fd" &&
         (folder.parent_path() == process ||
          folder.parent_path().parent_path() == process / "task");
}

std::optional<int> Number(std::string_view text) {
  int number = -1;
  const auto [stop, error] = std::from_chars(text.begin(), text.end(), number);
  return error == std::errc() && stop == text.end() && number >= 0 ? std::optional(number)
                                                                   : std::nullopt;
}

// A link's own way, read by hand: nothing is opened by what it tells.
std::optional<fs::path> TargetOfLink(const fs::path& name) {
  std::error_code error;
  const fs::path target = fs::read_symlink(name, error);
  return error ? std::nullopt : std::optional(FolderOf(name) / target);
}

void Take(FileIdentity& identity, const struct stat& status) {
  identity.device = status.st_dev;
  identity.node = status.st_ino;
  identity.isRegular = S_ISREG(status.st_mode);
}

}  // namespace

std::optional<int> NamedDescriptor(const fs::path& name) {
  if (name == "-") {
    return kStandardOutput;
  }
  std::optional<fs::path> link = name;
  for (int links = 0; link && links <= kMostLinks; ++links) {
    std::error_code error;
    if (IsOwnDescriptorFolder(fs::canonical(FolderOf(*link), error))) {
      return Number(link->filename().native());
    }
    link = TargetOfLink(*link);
  }
  return std::nullopt;
}

FileIdentity IdentityOfDescriptor(int descriptor) {
  FileIdentity identity;
  identity.descriptor = descriptor;
  struct stat status {};
  if (::fstat(descriptor, &status) == 0) {
    Take(identity, status);
  }
  return identity;
}

FileIdentity IdentityOf(const fs::path& name) {
  if (const std::optional<int> descriptor = NamedDescriptor(name)) {
    return IdentityOfDescriptor(*descriptor);
  }
  FileIdentity identity;
  struct stat status {};
  if (::stat(name.c_str(), &status) == 0) {
    Take(identity, status);
    return identity;
  }
  fs::path file = name;
  for (int links = 0; links < kMostLinks; ++links) {
    file = TargetOfLink(file).value_or(file);
  }
  if (::stat(FolderOf(file).c_str(), &status) == 0) {
    Take(identity, status);
    identity.isRegular = true;
    identity.newName = file.filename();
  } else {
    // It leads nowhere: the same as another one when both are spelled alike.
    identity.newName = fs::absolute(file).lexically_normal();
  }
  return identity;
}

bool CanBeReadAgain(const fs::path& name) {
  std::error_code none;
  return !fs::exists(name, none) || fs::is_regular_file(name, none);
}

bool IsOpenForWriting(int descriptor) {
  const int flags = ::fcntl(descriptor, F_GETFL);
  return flags >= 0 && (flags & O_PATH) == 0 && (flags & O_ACCMODE) != O_RDONLY;
}

}  // namespace strake::os
