#include "os/Handle_windows.h"
#include "tests/app/System.h"
#include "tests/support/Places.h"

#include <stdexcept>
#include <tlhelp32.h>

namespace strake::tests {
namespace {

constexpr DWORD kFault = 0xC0000005;

bool IsTheCommand(DWORD process) {
  const os::Handle opened(::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process));
  std::wstring name(MAX_PATH * 4, L'\0');
  auto length = static_cast<DWORD>(name.size());
  if (!opened.IsOpen() ||
      ::QueryFullProcessImageNameW(opened.Get(), 0, name.data(), &length) == 0) {
    return false;
  }
  name.resize(length);
  std::error_code ignored;  // of those that are no files here
  return std::filesystem::equivalent(name, BuildFolder() + "/bin/strake.exe", ignored);
}

}  // namespace

std::string NullDevice() { return "NUL"; }

std::string InQuotes(const std::string& word) { return '"' + word + '"'; }

int FaultStatus() { return static_cast<int>(kFault); }
std::string FaultText() { return "its process was ended by the system (status 0xC0000005)"; }

// Another's words are not to be had.
std::size_t CountProcessesWith(const std::string& /*text*/) {
  const os::Handle processes(::CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!processes.IsOpen()) {
    throw std::runtime_error("no list of processes");
  }
  std::size_t count = 0;
  PROCESSENTRY32W process{};
  process.dwSize = sizeof process;
  for (BOOL is = ::Process32FirstW(processes.Get(), &process); is != 0;
       is = ::Process32NextW(processes.Get(), &process)) {
    count += IsTheCommand(process.th32ProcessID) ? 1 : 0;
  }
  return count;
}

}  // namespace strake::tests
