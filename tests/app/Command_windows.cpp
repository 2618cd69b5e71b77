#include "os/CommandLine_windows.h"
#include "os/Handle_windows.h"
#include "tests/app/Command.h"
#include "tests/support/Places.h"

#include <array>

namespace strake::tests {
namespace {

SECURITY_ATTRIBUTES Inherited() {
  SECURITY_ATTRIBUTES attributes{};
  attributes.nLength = sizeof attributes;
  attributes.bInheritHandle = TRUE;
  return attributes;
}

os::Handle Open(const std::wstring& name, DWORD access, DWORD disposition, DWORD flags = 0) {
  SECURITY_ATTRIBUTES attributes = Inherited();
  os::Handle file(::CreateFileW(name.c_str(), access,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &attributes,
                                disposition, flags, nullptr));
  if (!file.IsOpen()) {
    os::FailBy();
  }
  return file;
}

// What a process wrote, without a reader that keeps up: a file that goes with its
// last handle.
class Capture {
 public:
  Capture()
      : fFile(Open(Name(), GENERIC_READ | GENERIC_WRITE | DELETE, CREATE_ALWAYS,
                   FILE_FLAG_DELETE_ON_CLOSE)) {}
  [[nodiscard]] HANDLE Get() const { return fFile.Get(); }
  [[nodiscard]] std::string Text() const {
    ::SetFilePointer(fFile.Get(), 0, nullptr, FILE_BEGIN);
    std::string text;
    std::array<char, 4096> piece{};
    for (DWORD count = 1; count > 0;) {
      if (::ReadFile(fFile.Get(), piece.data(), piece.size(), &count, nullptr) == 0) {
        os::FailBy();
      }
      text.append(piece.data(), count);
    }
    return text;
  }

 private:
  static std::wstring Name() {
    std::array<wchar_t, MAX_PATH> name{};
    const std::wstring folder = std::filesystem::temp_directory_path().native();
    if (::GetTempFileNameW(folder.c_str(), L"str", 0, name.data()) == 0) {
      os::FailBy();
    }
    return name.data();
  }

  os::Handle fFile;
};

// This process' own environment has it for a while: a child needs the rest of it.
class Variable {
 public:
  explicit Variable(const std::string& assignment)
      : fName(os::ToWide(assignment.substr(0, assignment.find('=')))) {
    ::SetEnvironmentVariableW(fName.c_str(),
                              os::ToWide(assignment.substr(fName.size() + 1)).c_str());
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  Variable(Variable&& other) noexcept : fName(std::exchange(other.fName, {})) {}
  Variable& operator=(Variable&&) = delete;
  ~Variable() {
    if (!fName.empty()) {
      ::SetEnvironmentVariableW(fName.c_str(), nullptr);
    }
  }

 private:
  std::wstring fName;
};

int Wait(HANDLE process) {
  DWORD status = 0;
  if (::WaitForSingleObject(process, INFINITE) != WAIT_OBJECT_0 ||
      ::GetExitCodeProcess(process, &status) == 0) {
    os::FailBy();
  }
  return static_cast<int>(status);
}

// An empty name is the device that holds nothing.
os::Handle InputOf(const std::string& file) {
  return Open(file.empty() ? L"NUL" : os::ToWide(file), GENERIC_READ, OPEN_EXISTING);
}

}  // namespace

Outcome Command::Run() const {
  const Capture out;
  const Capture err;
  const os::Handle input = InputOf(fInput);
  const os::Handle output =
      fOutput.empty() ? os::Handle() : Open(os::ToWide(fOutput), GENERIC_WRITE, OPEN_ALWAYS);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = input.Get();
  start.hStdOutput = output.IsOpen() ? output.Get() : out.Get();
  start.hStdError = err.Get();
  const std::vector<Variable> variables(fEnvironment.begin(), fEnvironment.end());
  const std::filesystem::path program = BuildFolder() + "/bin/strake.exe";
  std::wstring line = os::CommandLine(program, fWords);
  PROCESS_INFORMATION started{};
  if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                       &start, &started) == 0) {
    os::FailBy();
  }
  const os::Handle process(started.hProcess);
  const os::Handle thread(started.hThread);
  const int status = Wait(process.Get());
  return {status, out.Text(), err.Text()};
}

}  // namespace strake::tests
