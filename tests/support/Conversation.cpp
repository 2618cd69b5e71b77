#include "tests/support/Conversation.h"

#include <array>
#include <csignal>
#include <poll.h>
#include <pty.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace strake::tests {
namespace {

constexpr int kLongSilence = 10000;  // milliseconds

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

Conversation::Conversation(std::vector<std::string> words, std::vector<std::string> environment) {
  const winsize size{.ws_row = 50, .ws_col = 200, .ws_xpixel = 0, .ws_ypixel = 0};
  fProcess = ::forkpty(&fTerminal, nullptr, nullptr, &size);
  if (fProcess < 0) {
    throw std::runtime_error("no terminal");
  }
  if (fProcess == 0) {
    ::execve(words.front().c_str(), Pointers(words).data(), Pointers(environment).data());
    ::_exit(127);
  }
}

Conversation::~Conversation() {
  ::kill(fProcess, SIGKILL);
  ::waitpid(fProcess, nullptr, 0);
  ::close(fTerminal);
}

void Conversation::Say(const std::string& text) const {
  if (::write(fTerminal, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("nobody listens");
  }
}

void Conversation::Resize(unsigned short rows, unsigned short columns) const {
  const winsize size{.ws_row = rows, .ws_col = columns, .ws_xpixel = 0, .ws_ypixel = 0};
  ::ioctl(fTerminal, TIOCSWINSZ, &size);
}

std::string Conversation::Hear(const std::string& text) {
  std::array<char, 4096> piece{};
  for (auto end = fHeard.find(text);; end = fHeard.find(text)) {
    if (end != std::string::npos) {
      std::string heard = fHeard.substr(0, end + text.size());
      fHeard.erase(0, end + text.size());
      return heard;
    }
    pollfd ready{fTerminal, POLLIN, 0};
    const ssize_t count =
        ::poll(&ready, 1, kLongSilence) == 1 ? ::read(fTerminal, piece.data(), piece.size()) : 0;
    if (count <= 0) {
      return std::exchange(fHeard, "");
    }
    fHeard.append(piece.data(), static_cast<std::size_t>(count));
  }
}

}  // namespace strake::tests
