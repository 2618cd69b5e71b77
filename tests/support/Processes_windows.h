// Other processes, as Windows tells of them.
#pragma once

#include "os/ChildProcess.h"
#include "os/Handle_windows.h"

#include <cstddef>
#include <string>
#include <vector>

namespace strake::tests {

// The lines that it writes first, which are numbers of processes.
inline std::vector<DWORD> NumbersFrom(os::ChildProcess& child, std::size_t count) {
  std::string text;
  std::vector<DWORD> numbers;
  while (numbers.size() < count && !child.End()) {
    os::ChildProcess* const children[] = {&child};
    os::ChildProcess::Wait(children, std::nullopt);
    text += child.TakeOutput();
    for (std::size_t end = 0; (end = text.find('\n')) != std::string::npos;) {
      numbers.push_back(static_cast<DWORD>(std::stoul(text.substr(0, end))));
      text.erase(0, end + 1);
    }
  }
  return numbers;
}

inline os::Handle Open(DWORD process) {
  return os::Handle(::OpenProcess(SYNCHRONIZE | PROCESS_TERMINATE, FALSE, process));
}

// Long enough for any machine.
inline bool EndsSoon(const os::Handle& process) {
  return ::WaitForSingleObject(process.Get(), 20'000) == WAIT_OBJECT_0;
}

}  // namespace strake::tests
