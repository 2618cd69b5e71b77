#include "os/ChildProcess.h"
#include "os/Descriptor_posix.h"
#include "os/Signals.h"
#include "os/StartedProcess_posix.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <utility>

namespace strake::os {
namespace {

// No less than a pipe holds: one piece is all that is left of a child that ended.
constexpr std::size_t kPiece = std::size_t{64} * 1024;

constexpr std::size_t kDescriptors = 3;  // that a child is watched by

ChildEnd EndOf(int status) {
  if (WIFEXITED(status)) {
    return {WEXITSTATUS(status), ""};
  }
  const int signal = WTERMSIG(status);
  const char* const name = ::sigdescr_np(signal);
  return {std::nullopt, "signal " + std::to_string(signal) +
                            (name == nullptr ? "" : " (" + std::string(name) + ")")};
}

// Can be read when the process has ended. The declaration of the C library is
// none for C++ before its version 2.37.
Descriptor HandleOf(pid_t process) {
  return Descriptor(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
}

// What a child writes to.
struct Stream {
  Descriptor pipe;
  std::string text;

  // Closes the pipe where nothing more can come.
  void Read();
};

void Stream::Read() {
  if (!pipe.IsOpen()) {
    return;
  }
  std::array<char, kPiece> piece{};
  const ssize_t count = ::read(pipe.Number(), piece.data(), piece.size());
  if (count > 0) {
    text.append(piece.data(), static_cast<std::size_t>(count));
  } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
    pipe = Descriptor();
  }
}

// Rounded up, so that it is time when the wait is over.
int MillisecondsUntil(std::optional<ChildProcess::Clock::time_point> until) {
  if (!until) {
    return -1;
  }
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(*until - ChildProcess::Clock::now()).count();
  return static_cast<int>(std::clamp<std::int64_t>(left, 0, INT_MAX));
}

}  // namespace

class ChildProcess::State final : private Unfinished {
 public:
  State(const std::filesystem::path& program, const std::vector<std::string>& words, Input input);
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() override;

  // What poll looks at; a closed descriptor is passed over.
  [[nodiscard]] std::array<pollfd, kDescriptors> Watched() const;
  void Read(std::span<const pollfd> seen);

  Stream output;
  Stream errors;
  std::optional<ChildEnd> end;

 private:
  void EndBySignal() noexcept override { Kill(); }
  void Kill() noexcept;
  void Reap();

  pid_t fProcess = -1;
  Descriptor fHandle;
};

ChildProcess::State::State(const std::filesystem::path& program,
                           const std::vector<std::string>& words, Input input) {
  const SignalHold hold;
  StartedProcess started = Start(program, words, input == Input::Own);
  fProcess = started.process;
  output.pipe = std::move(started.output);
  errors.pipe = std::move(started.errors);
  fHandle = HandleOf(fProcess);
  if (!fHandle.IsOpen()) {
    const int error = errno;
    Kill();
    throw std::system_error(error, std::generic_category());
  }
  Enter();
}

ChildProcess::State::~State() {
  const SignalHold hold;
  Leave();
  Kill();
}

// Only the process' own parent waits for it, so until then nobody else has its number.
void ChildProcess::State::Kill() noexcept {
  if (fProcess > 0) {
    ::kill(fProcess, SIGKILL);
    while (::waitpid(fProcess, nullptr, 0) < 0 && errno == EINTR) {
    }
    fProcess = -1;
  }
}

std::array<pollfd, kDescriptors> ChildProcess::State::Watched() const {
  const auto watch = [](const Descriptor& descriptor) {
    return pollfd{.fd = descriptor.Number(), .events = POLLIN, .revents = 0};
  };
  return {watch(output.pipe), watch(errors.pipe), watch(fHandle)};
}

void ChildProcess::State::Read(std::span<const pollfd> seen) {
  const bool hasEnded = seen[2].revents != 0;
  if (hasEnded || seen[0].revents != 0) {
    output.Read();
  }
  if (hasEnded || seen[1].revents != 0) {
    errors.Read();
  }
  if (hasEnded) {
    Reap();
  }
}

// Somebody whom the child left behind may hold its pipes for ever.
void ChildProcess::State::Reap() {
  const SignalHold hold;
  int status = 0;
  while (::waitpid(fProcess, &status, 0) < 0 && errno == EINTR) {
  }
  fProcess = -1;
  Leave();
  end = EndOf(status);
  output.pipe = Descriptor();
  errors.pipe = Descriptor();
  fHandle = Descriptor();
}

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::string>& words, Input input)
    : fState(std::make_unique<State>(program, words, input)) {}

ChildProcess::~ChildProcess() = default;

std::string ChildProcess::TakeOutput() { return std::exchange(fState->output.text, {}); }
std::string ChildProcess::TakeErrors() { return std::exchange(fState->errors.text, {}); }
const std::optional<ChildEnd>& ChildProcess::End() const { return fState->end; }

void ChildProcess::Wait(std::span<ChildProcess* const> children,
                        std::optional<Clock::time_point> until) {
  std::vector<pollfd> watched;
  for (const ChildProcess* const child : children) {
    const auto descriptors = child->fState->Watched();
    watched.insert(watched.end(), descriptors.begin(), descriptors.end());
  }
  if (::poll(watched.data(), watched.size(), MillisecondsUntil(until)) <= 0) {
    return;
  }
  const std::span<const pollfd> seen(watched);
  for (std::size_t i = 0; i < children.size(); ++i) {
    children[i]->fState->Read(seen.subspan(i * kDescriptors, kDescriptors));
  }
}

}  // namespace strake::os
