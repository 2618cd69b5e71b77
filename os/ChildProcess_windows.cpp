#include "os/ChildProcess.h"
#include "os/Signals.h"
#include "os/StartedProcess_windows.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <sstream>
#include <utility>

namespace strake::os {
namespace {

// No less than a pipe holds: one piece is all that is left of a child that ended.
constexpr std::size_t kPiece = kPipeSize;

// How often pipes are looked at: nothing tells of what is written to them.
constexpr std::chrono::milliseconds kStep{5};

// Statuses from here on are the system's: what ended the process.
constexpr DWORD kFirstFailure = 0xC0000000;

ChildEnd EndOf(DWORD status) {
  if (status < kFirstFailure) {
    return {static_cast<int>(status), ""};
  }
  std::ostringstream text;
  text << "the system (status 0x" << std::hex << std::uppercase << status << ")";
  return {std::nullopt, text.str()};
}

// What a child writes to.
struct Stream {
  Handle pipe;
  std::string text;

  // A piece of what is there, without waiting; false: there is nothing.
  bool Read();
};

bool Stream::Read() {
  DWORD ready = 0;
  if (!pipe.IsOpen()) {
    return false;
  }
  if (::PeekNamedPipe(pipe.Get(), nullptr, 0, nullptr, &ready, nullptr) == 0) {
    pipe.Close();  // nothing more can come
    return false;
  }
  if (ready == 0) {
    return false;
  }
  std::array<char, kPiece> piece{};
  DWORD count = 0;
  if (::ReadFile(pipe.Get(), piece.data(), std::min<DWORD>(ready, piece.size()), &count, nullptr) ==
      0) {
    return false;
  }
  text.append(piece.data(), count);
  return true;
}

}  // namespace

class ChildProcess::State final : private Unfinished {
 public:
  State(const std::filesystem::path& program, const std::vector<std::string>& words, Input input);
  State(const State&) = delete;
  State& operator=(const State&) = delete;
  ~State() override;

  // False: it wrote nothing and did not end.
  bool Advance();

  Stream output;
  Stream errors;
  std::optional<ChildEnd> end;

 private:
  void EndBySignal() noexcept override;

  Handle fJob;
  Handle fProcess;
};

ChildProcess::State::State(const std::filesystem::path& program,
                           const std::vector<std::string>& words, Input input) {
  const SignalHold hold;
  StartedProcess started = Start(program, words, input == Input::Own);
  fJob = std::move(started.job);
  fProcess = std::move(started.process);
  output.pipe = std::move(started.output);
  errors.pipe = std::move(started.errors);
  Enter();
}

ChildProcess::State::~State() {
  const SignalHold hold;
  Leave();
  State::EndBySignal();
}

void ChildProcess::State::EndBySignal() noexcept {
  if (fProcess.IsOpen()) {
    ::TerminateJobObject(fJob.Get(), 1);
    ::WaitForSingleObject(fProcess.Get(), INFINITE);
    fProcess.Close();
  }
}

// Whether it has ended is asked before its pipes are read, so that nothing that
// it wrote comes after.
bool ChildProcess::State::Advance() {
  const bool hasEnded = ::WaitForSingleObject(fProcess.Get(), 0) == WAIT_OBJECT_0;
  const bool hasOutput = output.Read();
  const bool hasErrors = errors.Read();
  if (hasEnded) {
    const SignalHold hold;
    DWORD status = 0;
    ::GetExitCodeProcess(fProcess.Get(), &status);
    Leave();
    end = EndOf(status);
    output.pipe.Close();
    errors.pipe.Close();
    fProcess.Close();
  }
  return hasEnded || hasOutput || hasErrors;
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
  for (;;) {
    bool hasNews = false;
    for (const ChildProcess* const child : children) {
      hasNews = child->fState->Advance() || hasNews;
    }
    if (hasNews || (until && Clock::now() >= *until)) {
      return;
    }
    ::Sleep(static_cast<DWORD>(kStep.count()));
  }
}

}  // namespace strake::os
