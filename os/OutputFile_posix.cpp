#include "os/FileIdentity.h"
#include "os/OutputFile.h"
#include "os/OutputTarget_posix.h"
#include "os/Signals.h"
#include "os/StagedFile_posix.h"

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <string>
#include <system_error>

namespace strake::os {
namespace {

constexpr std::size_t kMostPending = std::size_t{64} * 1024;
constexpr mode_t kOwnerMode = 0600;
constexpr mode_t kUsualMode = 0666;
constexpr mode_t kAnyMode = 0777;
constexpr mode_t kOthers = 077;

[[noreturn]] void Fail(const std::filesystem::path& name, const std::string& reason) {
  throw OutputError("cannot write " + name.string() + ": " + reason);
}

std::string ErrorText(int error) { return std::generic_category().message(error); }

// Whether a file's mode is this user's to change.
bool IsOurs(const struct stat& status) { return ::geteuid() == 0 || ::geteuid() == status.st_uid; }

}  // namespace

class OutputFile::State final : private Unfinished {
 public:
  State(const std::filesystem::path& name, Privacy privacy, OnSignal onSignal);
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() override;

  void Write(std::string_view bytes);
  void Complete();

 private:
  void StageBeside();
  void StageInMemory();
  void EndBySignal() noexcept override;
  // Safe in a signal handler.
  void Flush() noexcept;
  void Publish() noexcept;
  [[nodiscard]] int CopyInPlace() const noexcept;
  [[nodiscard]] bool IsClosedToOthers() const;

  std::filesystem::path fName;  // as it was given, for messages
  Privacy fPrivacy;
  OnSignal fOnSignal;
  OutputTarget fTarget;
  std::optional<StagedFile> fStaged;
  int fError = 0;
  std::string fPending;
};

OutputFile::State::State(const std::filesystem::path& name, Privacy privacy, OnSignal onSignal)
    : fName(name), fPrivacy(privacy), fOnSignal(onSignal) {
  try {
    fTarget = OpenOutputTarget(name);
    const SignalHold hold;
    if (!fTarget.isStream) {
      StageBeside();
      if (!fStaged) {
        StageInMemory();
      }
    }
    Enter();
  } catch (const std::system_error& error) {
    Fail(name, ErrorText(error.code().value()));
  }
}

OutputFile::State::~State() {
  const SignalHold hold;
  Leave();
  fStaged.reset();
}

// Stages nothing when the target is there and cannot be replaced.
void OutputFile::State::StageBeside() {
  if (!fTarget.canBeReplaced) {
    return;
  }
  const bool isNew = !fTarget.existing.IsOpen();
  const bool isSecret = fPrivacy == Privacy::Owner;
  try {
    fStaged.emplace(fTarget.folder, StagedFile::Place::Unnamed,
                    isSecret || !isNew ? kOwnerMode : kUsualMode);
  } catch (const std::system_error& error) {
    const int reason = error.code().value();
    if (isNew || (reason != EACCES && reason != EPERM && reason != EROFS)) {
      throw;
    }
    fTarget.canBeReplaced = false;
    return;
  }
  if (!isNew) {
    fStaged->TakeOver(fTarget.status, isSecret ? kOwnerMode : kAnyMode);
  }
}

void OutputFile::State::StageInMemory() {
  if (!IsClosedToOthers() && !IsOurs(fTarget.status)) {
    Fail(fName, "it can hold secrets, and only the file's owner can close it to others");
  }
  fStaged.emplace(fTarget.folder, StagedFile::Place::Memory, kOwnerMode);
}

bool OutputFile::State::IsClosedToOthers() const {
  return fPrivacy == Privacy::Usual || (fTarget.status.st_mode & kOthers) == 0;
}

void OutputFile::State::Write(std::string_view bytes) {
  const SignalHold hold;
  fPending += bytes;
  if (fPending.size() >= kMostPending) {
    Flush();
  }
}

void OutputFile::State::Flush() noexcept {
  if (fError == 0) {
    fError = WriteAll(fStaged ? fStaged->Number() : fTarget.existing.Number(), fPending.data(),
                      fPending.size());
  }
  fPending.clear();
}

int OutputFile::State::CopyInPlace() const noexcept {
  const int file = fTarget.existing.Number();
  if (!IsClosedToOthers() && ::fchmod(file, fTarget.status.st_mode & kOwnerMode) != 0) {
    return errno;
  }
  return fStaged->CopyTo(file);
}

void OutputFile::State::Publish() noexcept {
  Flush();
  if (fError != 0 || !fStaged) {
    return;
  }
  if (!fTarget.canBeReplaced) {
    fError = CopyInPlace();
    return;
  }
  fError = ::fsync(fStaged->Number()) == 0 ? fStaged->MoveTo(fTarget.name.c_str()) : errno;
  // What cannot be known beforehand everywhere: whether the name can be taken.
  if (fTarget.existing.IsOpen() && (fError == EBUSY || fError == EPERM || fError == EACCES)) {
    fError = CopyInPlace();
  } else if (fError == 0) {
    const Descriptor folder(
        ::openat(fTarget.folder.Number(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ::fsync(folder.Number());  // not every file system knows this of folders
  }
}

void OutputFile::State::EndBySignal() noexcept {
  if (fOnSignal == OnSignal::Complete) {
    Publish();
  }
  if (fStaged) {
    fStaged->Discard();
  }
}

void OutputFile::State::Complete() {
  const SignalHold hold;
  Publish();
  Leave();
  if (fStaged) {
    fStaged->Discard();
  }
  if (fError == 0 && !fStaged) {
    fError = fTarget.existing.Close();
  }
  if (fError == EPIPE && NamedDescriptor(fName) == kStandardOutput) {
    EndByClosedPipe();
  }
  if (fError != 0) {
    Fail(fName, ErrorText(fError));
  }
}

OutputFile::OutputFile(const std::filesystem::path& name, Privacy privacy, OnSignal onSignal)
    : fState(std::make_unique<State>(name, privacy, onSignal)) {}

OutputFile::~OutputFile() = default;

void OutputFile::Write(std::string_view bytes) { fState->Write(bytes); }

void OutputFile::Complete() { fState->Complete(); }

void WriteStandardOutput(std::string_view bytes) {
  const int error = WriteAll(kStandardOutput, bytes.data(), bytes.size());
  if (error == EPIPE) {
    EndByClosedPipe();
  }
  if (error != 0) {
    throw OutputError("cannot write to standard output: " + ErrorText(error));
  }
}

void TryWriteStandardOutput(std::string_view bytes) noexcept {
  WriteAll(kStandardOutput, bytes.data(), bytes.size());
}

void WriteStandardError(std::string_view bytes) {
  WriteAll(kStandardError, bytes.data(), bytes.size());
}

}  // namespace strake::os
