#include "os/OutputTarget.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace strake::os {
namespace {

namespace fs = std::filesystem;

// As the system's own limit.
constexpr int kMostLinks = 40;

struct DescriptorName {
  std::string_view name;
  int descriptor;
};

constexpr std::array<DescriptorName, 2> kDescriptorNames{{
    {"/dev/stdout", STDOUT_FILENO},
    {"/dev/stderr", STDERR_FILENO},
}};
constexpr std::array<std::string_view, 2> kDescriptorFolders{"/dev/fd/", "/proc/self/fd/"};

// Opened by its name, a redirected standard output would be a second file that
// starts at its first byte; so these names stand for the descriptor itself.
std::optional<int> FindDescriptor(std::string_view name) {
  for (const DescriptorName& known : kDescriptorNames) {
    if (name == known.name) {
      return known.descriptor;
    }
  }
  for (const std::string_view folder : kDescriptorFolders) {
    if (name.substr(0, folder.size()) == folder) {
      const std::string_view number = name.substr(folder.size());
      int descriptor = -1;
      const char* const end = number.data() + number.size();
      const auto [stop, error] = std::from_chars(number.data(), end, descriptor);
      if (error == std::errc() && stop == end && descriptor >= 0) {
        return descriptor;
      }
    }
  }
  return std::nullopt;
}

// Also a link whose target does not exist is followed: the target is created.
fs::path FollowLinks(fs::path name) {
  for (int links = 0; fs::is_symlink(fs::symlink_status(name)); ++links) {
    if (links == kMostLinks) {
      throw std::system_error(ELOOP, std::generic_category());
    }
    name = name.parent_path() / fs::read_symlink(name);
  }
  const fs::path folder = name.has_parent_path() ? name.parent_path() : fs::path(".");
  return fs::canonical(folder) / name.filename();
}

// A name that leads nowhere is the same as another one when both are spelled alike.
fs::path Identity(const fs::path& name) {
  try {
    return FindOutputTarget(name).file;
  } catch (const std::system_error&) {
    return fs::absolute(name).lexically_normal();
  }
}

}  // namespace

OutputTarget FindOutputTarget(const fs::path& name) {
  if (const std::optional<int> descriptor = FindDescriptor(name.native())) {
    return {"/dev/fd/" + std::to_string(*descriptor), false, descriptor};
  }
  OutputTarget target;
  target.file = FollowLinks(name);
  const fs::file_status status = fs::status(target.file);
  target.isReplaced = !fs::exists(status) || fs::is_regular_file(status);
  return target;
}

bool AreSameFile(const fs::path& one, const fs::path& other) {
  return Identity(one) == Identity(other);
}

}  // namespace strake::os
