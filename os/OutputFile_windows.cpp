#include "os/FileIdentity.h"
#include "os/Handle_windows.h"
#include "os/OutputFile.h"
#include "os/Signals.h"
#include "os/StagedFile_windows.h"

#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace strake::os {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostPending = std::size_t{64} * 1024;

[[noreturn]] void Fail(const fs::path& name, const std::string& reason) {
  throw OutputError("cannot write " + name.string() + ": " + reason);
}

// What the name of an output leads to.
struct Target {
  Handle existing;        // closed: there is none
  bool isStream = false;  // it takes bytes as they come
  std::wstring name;      // of the file, its links resolved where it is there
};

Handle OpenForWriting(const wchar_t* name) {
  return Handle(::CreateFileW(name, GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

Handle CopyOfStandardOutput() {
  HANDLE copy = nullptr;
  if (::DuplicateHandle(::GetCurrentProcess(), StandardHandle(kStandardOutput),
                        ::GetCurrentProcess(), &copy, 0, FALSE, DUPLICATE_SAME_ACCESS) == 0) {
    FailBy();
  }
  return Handle(copy);
}

Target OpenTarget(const fs::path& name) {
  Target target;
  if (NamedDescriptor(name)) {
    target.existing = CopyOfStandardOutput();
    target.isStream = true;
    return target;
  }
  std::error_code ignored;
  if (name.empty() || fs::is_directory(name, ignored)) {
    throw std::system_error(EISDIR, std::generic_category());
  }
  if (name.filename().empty()) {
    const bool isFile = fs::exists(name.parent_path(), ignored);
    throw std::system_error(isFile ? ENOTDIR : ENOENT, std::generic_category());
  }
  target.name = FullName(name);
  // A part of a file beside its content cannot be put in place by a name.
  if (fs::path(target.name).filename().native().find(L':') != std::wstring::npos) {
    throw std::system_error(EINVAL, std::generic_category());
  }
  target.existing = OpenForWriting(target.name.c_str());
  if (!target.existing.IsOpen()) {
    if (const DWORD error = ::GetLastError();
        error != ERROR_FILE_NOT_FOUND || IsDeviceName(target.name)) {
      FailBy(error);
    }
    return target;
  }
  target.isStream = ::GetFileType(target.existing.Get()) != FILE_TYPE_DISK;
  if (!target.isStream) {
    if (std::wstring spelt = NameOf(target.existing.Get()); !spelt.empty()) {
      target.name = std::move(spelt);
    }
  }
  return target;
}

Access AccessOf(const Target& target, Privacy privacy) {
  if (privacy == Privacy::Owner) {
    return Access::OfOwner();
  }
  return target.existing.IsOpen() ? Access::Of(target.existing.Get()) : Access();
}

}  // namespace

class OutputFile::State final : private Unfinished {
 public:
  State(const fs::path& name, Privacy privacy, OnSignal onSignal);
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() override;

  void Write(std::string_view bytes);
  void Complete();

 private:
  void EndBySignal() noexcept override;
  void Flush() noexcept;
  void Publish() noexcept;

  fs::path fName;  // as it was given, for messages
  Privacy fPrivacy;
  OnSignal fOnSignal;
  Target fTarget;
  std::optional<StagedFile> fStaged;
  DWORD fError = 0;
  std::string fPending;
};

OutputFile::State::State(const fs::path& name, Privacy privacy, OnSignal onSignal)
    : fName(name), fPrivacy(privacy), fOnSignal(onSignal) {
  try {
    fTarget = OpenTarget(name);
    const SignalHold hold;
    if (!fTarget.isStream) {
      fStaged.emplace(fs::path(fTarget.name).parent_path(), AccessOf(fTarget, privacy));
      fTarget.existing.Close();  // the system replaces no file that is open
    }
    Enter();
  } catch (const std::system_error& error) {
    Fail(name, error.code().message());
  }
}

OutputFile::State::~State() {
  const SignalHold hold;
  Leave();
  fStaged.reset();
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
    fError = WriteAll(fStaged ? fStaged->File() : fTarget.existing.Get(), fPending.data(),
                      fPending.size());
  }
  fPending.clear();
}

void OutputFile::State::Publish() noexcept {
  Flush();
  if (fError != 0 || !fStaged) {
    return;
  }
  fError = fStaged->MoveTo(fTarget.name.c_str());
  // Somebody has the file open, who must not read secrets in it.
  if ((fError == ERROR_ACCESS_DENIED || fError == ERROR_SHARING_VIOLATION) &&
      fPrivacy == Privacy::Usual) {
    fError = fStaged->CopyTo(fTarget.name.c_str());
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
  fTarget.existing.Close();
  if (IsClosedPipe(fError) && NamedDescriptor(fName) == kStandardOutput) {
    EndByClosedPipe();
  }
  if (fError != 0) {
    Fail(fName, ErrorText(fError));
  }
}

OutputFile::OutputFile(const fs::path& name, Privacy privacy, OnSignal onSignal)
    : fState(std::make_unique<State>(name, privacy, onSignal)) {}

OutputFile::~OutputFile() = default;

void OutputFile::Write(std::string_view bytes) { fState->Write(bytes); }

void OutputFile::Complete() { fState->Complete(); }

void WriteStandardOutput(std::string_view bytes) {
  const DWORD error = WriteAll(StandardHandle(kStandardOutput), bytes.data(), bytes.size());
  if (IsClosedPipe(error)) {
    EndByClosedPipe();
  }
  if (error != 0) {
    throw OutputError("cannot write to standard output: " + ErrorText(error));
  }
}

void TryWriteStandardOutput(std::string_view bytes) noexcept {
  WriteAll(StandardHandle(kStandardOutput), bytes.data(), bytes.size());
}

void WriteStandardError(std::string_view bytes) {
  WriteAll(StandardHandle(kStandardError), bytes.data(), bytes.size());
}

}  // namespace strake::os
