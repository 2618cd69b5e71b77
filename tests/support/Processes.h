// Other processes, as the system tells of them.
#pragma once

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <set>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace strake::tests {

inline bool IsThere(pid_t process) { return ::kill(process, 0) == 0 || errno != ESRCH; }

// Waits for a process that need not be this one's; long enough for any machine.
inline bool EndsSoon(pid_t process) {
  const int handle = static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
  if (handle < 0) {
    return errno == ESRCH;
  }
  pollfd watched{.fd = handle, .events = POLLIN, .revents = 0};
  const bool hasEnded = ::poll(&watched, 1, 20'000) == 1;
  ::close(handle);
  return hasEnded;
}

// Those that were given a word with this text in it and have not ended.
inline std::set<pid_t> ProcessesWith(const std::string& text) {
  std::set<pid_t> processes;
  for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
    const std::string name = entry.path().filename();
    if (name.find_first_not_of("0123456789") != std::string::npos) {
      continue;
    }
    std::ifstream file(entry.path() / "cmdline", std::ios::binary);
    const std::string words{std::istreambuf_iterator<char>(file), {}};
    if (words.find(text) != std::string::npos) {
      processes.insert(std::stoi(name));
    }
  }
  return processes;
}

}  // namespace strake::tests
