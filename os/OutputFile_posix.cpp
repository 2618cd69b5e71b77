#include "os/OutputFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace strake::os {
namespace {

constexpr std::size_t kMostPending = std::size_t{64} * 1024;
constexpr int kMostAttempts = 1000;
constexpr mode_t kOwnerMode = 0600;
constexpr mode_t kUsualMode = 0666;

std::string ErrorText(int error) { return std::generic_category().message(error); }

// Gives the error, 0 when everything is written.
int WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace

OutputFile::OutputFile(const std::filesystem::path& name, Privacy privacy) : fName(name) {
  try {
    fTarget = FindOutputTarget(name);
  } catch (const std::system_error& error) {
    Fail(error.code().value());
  }
  if (fTarget.isReplaced) {
    OpenBeside(privacy);
  } else if (fTarget.descriptor) {
    fDescriptor = ::fcntl(*fTarget.descriptor, F_DUPFD_CLOEXEC, 0);
  } else {
    fDescriptor = ::open(fTarget.file.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
  }
  if (fDescriptor < 0) {
    Fail(errno);
  }
}

OutputFile::~OutputFile() {
  if (fDescriptor >= 0) {
    ::close(fDescriptor);
  }
  if (!fTemporary.empty()) {
    ::unlink(fTemporary.c_str());
  }
}

// Leaves the descriptor at -1, with errno, when there is no way.
void OutputFile::OpenBeside(Privacy privacy) {
  // A file that its owner protected is not replaced behind the protection's back.
  if (::faccessat(AT_FDCWD, fTarget.file.c_str(), W_OK, AT_EACCESS) != 0 && errno != ENOENT) {
    return;
  }
  const mode_t mode = privacy == Privacy::Owner ? kOwnerMode : kUsualMode;
  const std::string stem = ".strake-" + std::to_string(::getpid()) + "-";
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    const std::filesystem::path beside =
        fTarget.file.parent_path() / (stem + std::to_string(attempt));
    fDescriptor =
        ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
    if (fDescriptor >= 0) {
      fTemporary = beside;
      return;
    }
    if (errno != EEXIST) {
      return;
    }
  }
}

void OutputFile::Write(std::string_view bytes) {
  fPending += bytes;
  if (fPending.size() >= kMostPending) {
    Flush();
  }
}

void OutputFile::Flush() {
  if (fError == 0) {
    fError = WriteAll(fDescriptor, fPending);
  }
  fPending.clear();
}

void OutputFile::Complete() {
  Flush();
  if (::close(fDescriptor) != 0 && fError == 0) {
    fError = errno;
  }
  fDescriptor = -1;
  if (fError == 0 && !fTemporary.empty() &&
      ::rename(fTemporary.c_str(), fTarget.file.c_str()) != 0) {
    fError = errno;
  }
  if (fError != 0) {
    Fail(fError);
  }
  fTemporary.clear();
}

void OutputFile::Fail(int error) const {
  throw OutputError("cannot write " + fName.string() + ": " + ErrorText(error));
}

void WriteStandardOutput(std::string_view bytes) {
  if (const int error = WriteAll(STDOUT_FILENO, bytes); error != 0) {
    throw OutputError("cannot write to standard output: " + ErrorText(error));
  }
}

void WriteStandardError(std::string_view bytes) { WriteAll(STDERR_FILENO, bytes); }

}  // namespace strake::os
