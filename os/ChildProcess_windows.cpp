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

// What is left until then, and no more than a wait can be told.
DWORD Milliseconds(ChildProcess::Clock::time_point until) {
  constexpr std::chrono::milliseconds kMost(INFINITE - 1);
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(until - ChildProcess::Clock::now());
  return static_cast<DWORD>(std::clamp(left, std::chrono::milliseconds(0), kMost).count());
}

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

// Where the system tells that something was read or a child ended. What it tells
// is no more than that: whoever waits looks at all of its children.
HANDLE News() {
  static const Handle kPort(::CreateIoCompletionPort(INVALID_HANDLE_VALUE, nullptr, 0, 1));
  if (!kPort.IsOpen()) {
    FailBy();
  }
  return kPort.Get();
}

VOID CALLBACK TellOfAnEnd(PVOID news, BOOLEAN /*isLate*/) {
  ::PostQueuedCompletionStatus(news, 0, 0, nullptr);
}

// What a child writes to: one read of it is always under way.
class Stream {
 public:
  explicit Stream(Handle pipe);
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;
  ~Stream() { Stop(); }

  // What was read meanwhile; false: nothing.
  bool Advance();
  // All that is there, of a child that has ended.
  void Finish();

  std::string text;

 private:
  void Begin();
  // Ends the read that is under way, and gives how much it brought.
  DWORD Stop() noexcept;
  void Take(DWORD count) { text.append(fPiece.data(), count); }

  Handle fPipe;
  Handle fDone;
  OVERLAPPED fRead{};
  std::array<char, kPipeSize> fPiece{};
};

Stream::Stream(Handle pipe)
    : fPipe(std::move(pipe)), fDone(::CreateEventW(nullptr, TRUE, FALSE, nullptr)) {
  if (!fDone.IsOpen() || ::CreateIoCompletionPort(fPipe.Get(), News(), 0, 0) == nullptr) {
    FailBy();
  }
  Begin();
}

// A read that is done at once is told of, too.
void Stream::Begin() {
  fRead = {};
  fRead.hEvent = fDone.Get();
  if (::ReadFile(fPipe.Get(), fPiece.data(), static_cast<DWORD>(fPiece.size()), nullptr, &fRead) ==
          0 &&
      ::GetLastError() != ERROR_IO_PENDING) {
    fPipe.Close();  // nothing more can come
  }
}

bool Stream::Advance() {
  if (!fPipe.IsOpen()) {
    return false;
  }
  DWORD count = 0;
  if (::GetOverlappedResult(fPipe.Get(), &fRead, &count, FALSE) == 0) {
    if (::GetLastError() != ERROR_IO_INCOMPLETE) {
      fPipe.Close();
    }
    return false;
  }
  Take(count);
  Begin();
  return true;
}

DWORD Stream::Stop() noexcept {
  DWORD count = 0;
  if (fPipe.IsOpen()) {
    ::CancelIoEx(fPipe.Get(), &fRead);
    if (::GetOverlappedResult(fPipe.Get(), &fRead, &count, TRUE) == 0) {
      count = 0;
    }
  }
  return count;
}

// The read that is under way took what was left: a piece is no less than a pipe
// holds. What whoever else has the pipe writes later is not waited for.
void Stream::Finish() {
  Take(Stop());
  fPipe.Close();
}

}  // namespace

class ChildProcess::State final : private Unfinished {
 public:
  explicit State(StartedProcess&& started);
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
  // The system looks for its end no longer, which must come before the handle goes.
  void Unregister() noexcept;

  Handle fJob;
  Handle fProcess;
  HANDLE fWait = nullptr;
};

ChildProcess::State::State(StartedProcess&& started)
    : output(std::move(started.output)),
      errors(std::move(started.errors)),
      fJob(std::move(started.job)),
      fProcess(std::move(started.process)) {
  if (::RegisterWaitForSingleObject(&fWait, fProcess.Get(), TellOfAnEnd, News(), INFINITE,
                                    WT_EXECUTEONLYONCE | WT_EXECUTEINWAITTHREAD) == 0) {
    FailBy();
  }
  Enter();
}

void ChildProcess::State::Unregister() noexcept {
  if (fWait != nullptr) {
    ::UnregisterWaitEx(std::exchange(fWait, nullptr), INVALID_HANDLE_VALUE);
  }
}

ChildProcess::State::~State() {
  Unregister();
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
  const bool hasOutput = output.Advance();
  const bool hasErrors = errors.Advance();
  if (hasEnded) {
    const SignalHold hold;
    DWORD status = 0;
    ::GetExitCodeProcess(fProcess.Get(), &status);
    Leave();
    end = EndOf(status);
    output.Finish();
    errors.Finish();
    Unregister();
    fProcess.Close();
  }
  return hasEnded || hasOutput || hasErrors;
}

ChildProcess::ChildProcess(const std::filesystem::path& program,
                           const std::vector<std::string>& words, Input input) {
  const SignalHold hold;
  // cppcheck-suppress useInitializationList; the hold comes first
  fState = std::make_unique<State>(Start(program, words, input == Input::Own));
}

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
    DWORD count = 0;
    ULONG_PTR key = 0;
    OVERLAPPED* read = nullptr;
    ::GetQueuedCompletionStatus(News(), &count, &key, &read,
                                until ? Milliseconds(*until) : INFINITE);
  }
}

}  // namespace strake::os
