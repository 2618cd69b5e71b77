#include "os/StartedProcess_windows.h"

#include "os/CommandLine_windows.h"
#include "os/FileIdentity.h"

#include <array>
#include <string_view>
#include <utility>

namespace strake::os {
namespace {

struct Pipe {
  Handle read;
  Handle write;
};

Handle Inherited(HANDLE handle) {
  HANDLE copy = nullptr;
  if (::DuplicateHandle(::GetCurrentProcess(), handle, ::GetCurrentProcess(), &copy, 0, TRUE,
                        DUPLICATE_SAME_ACCESS) == 0) {
    FailBy();
  }
  return Handle(copy);
}

// The end that is written to goes to the child. The other one is read while
// something else is done, which a pipe needs a name for.
Pipe MakePipe() {
  static LONG volatile count = 0;
  const std::wstring name = L"\\\\.\\pipe\\strake-" + std::to_wstring(::GetCurrentProcessId()) +
                            L"-" + std::to_wstring(::InterlockedIncrement(&count));
  Handle read(::CreateNamedPipeW(
      name.c_str(), PIPE_ACCESS_INBOUND | FILE_FLAG_FIRST_PIPE_INSTANCE | FILE_FLAG_OVERLAPPED,
      PIPE_TYPE_BYTE | PIPE_WAIT | PIPE_REJECT_REMOTE_CLIENTS, 1, 0, kPipeSize, 0, nullptr));
  if (!read.IsOpen()) {
    FailBy();
  }
  SECURITY_ATTRIBUTES inherited{
      .nLength = sizeof inherited, .lpSecurityDescriptor = nullptr, .bInheritHandle = TRUE};
  Handle write(
      ::CreateFileW(name.c_str(), GENERIC_WRITE, 0, &inherited, OPEN_EXISTING, 0, nullptr));
  if (!write.IsOpen()) {
    FailBy();
  }
  return {std::move(read), std::move(write)};
}

Handle MakeInput(bool hasInput) {
  if (hasInput) {
    return Inherited(StandardHandle(kStandardInput));
  }
  const Handle nothing(::CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                     nullptr, OPEN_EXISTING, 0, nullptr));
  if (!nothing.IsOpen()) {
    FailBy();
  }
  return Inherited(nothing.Get());
}

Handle MakeJob() {
  Handle job(::CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  if (!job.IsOpen() || ::SetInformationJobObject(job.Get(), JobObjectExtendedLimitInformation,
                                                 &limits, sizeof limits) == 0) {
    FailBy();
  }
  return job;
}

// The handles that a child gets, and no others.
class Inheritance {
 public:
  explicit Inheritance(const std::array<HANDLE, 3>& handles) : fHandles(handles) {
    SIZE_T size = 0;
    ::InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    fBytes.resize(size);
    if (::InitializeProcThreadAttributeList(List(), 1, 0, &size) == 0) {
      FailBy();
    }
    if (::UpdateProcThreadAttribute(List(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, fHandles.data(),
                                    sizeof fHandles, nullptr, nullptr) == 0) {
      const DWORD error = ::GetLastError();
      ::DeleteProcThreadAttributeList(List());
      FailBy(error);
    }
  }
  Inheritance(const Inheritance&) = delete;
  Inheritance& operator=(const Inheritance&) = delete;
  ~Inheritance() { ::DeleteProcThreadAttributeList(List()); }

  [[nodiscard]] LPPROC_THREAD_ATTRIBUTE_LIST List() noexcept {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(fBytes.data());
  }

 private:
  std::array<HANDLE, 3> fHandles;
  std::vector<std::byte> fBytes;
};

}  // namespace

// It runs when it belongs to the job, so that nothing of it outlives this process.
StartedProcess Start(const std::filesystem::path& program, const std::vector<std::string>& words,
                     bool hasInput) {
  const Handle input = MakeInput(hasInput);
  Pipe output = MakePipe();
  Pipe errors = MakePipe();
  Inheritance inheritance({input.Get(), output.write.Get(), errors.write.Get()});
  STARTUPINFOEXW start{};
  start.StartupInfo.cb = sizeof start;
  start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  start.StartupInfo.hStdInput = input.Get();
  start.StartupInfo.hStdOutput = output.write.Get();
  start.StartupInfo.hStdError = errors.write.Get();
  start.lpAttributeList = inheritance.List();
  Handle job = MakeJob();
  std::wstring line = CommandLine(program, words);
  PROCESS_INFORMATION started{};
  if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                       CREATE_SUSPENDED | EXTENDED_STARTUPINFO_PRESENT, nullptr, nullptr,
                       &start.StartupInfo, &started) == 0) {
    FailBy();
  }
  Handle process(started.hProcess);
  const Handle thread(started.hThread);
  if (::AssignProcessToJobObject(job.Get(), process.Get()) == 0) {
    const DWORD error = ::GetLastError();
    ::TerminateProcess(process.Get(), 1);
    FailBy(error);
  }
  ::ResumeThread(thread.Get());
  return {std::move(job), std::move(process), std::move(output.read), std::move(errors.read)};
}

}  // namespace strake::os
