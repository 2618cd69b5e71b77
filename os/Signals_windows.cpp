#include "os/Handle_windows.h"
#include "os/Signals.h"

#include <csignal>

namespace strake::os {
namespace {

constexpr ULONGLONG kSameRequestMilliseconds = 250;
// As the system ends a process that has no handler.
constexpr UINT kEndedByRequest = 0xC000013A;
constexpr UINT kEndedByClosedPipe = 1;

// Requests arrive on a thread of their own: a hold is a lock that it waits for.
struct State {
  State() noexcept { ::InitializeCriticalSection(&lock); }

  CRITICAL_SECTION lock{};
  volatile LONG hasRequest = 0;
  ULONGLONG requestTime = 0;
  bool isPrepared = false;
};

State& TheState() {
  static State state;
  return state;
}

[[noreturn]] void EndBy(UINT status) {
  ::EnterCriticalSection(&TheState().lock);  // never given back
  Unfinished::EndAll();
  ::TerminateProcess(::GetCurrentProcess(), status);
  for (;;) {
    ::Sleep(INFINITE);
  }
}

BOOL WINAPI OnRequest(DWORD /*kind*/) {
  State& state = TheState();
  if (::InterlockedExchange(&state.hasRequest, 1) == 0) {
    state.requestTime = ::GetTickCount64();
    EndBy(kEndedByRequest);
  }
  if (::GetTickCount64() - state.requestTime > kSameRequestMilliseconds) {
    ::TerminateProcess(::GetCurrentProcess(), kEndedByRequest);
  }
  return TRUE;
}

// As the system ends a process that does what these stand for; the C library's
// own status says that there are findings.
void OnFault(int signal) {
  UINT status = STATUS_STACK_BUFFER_OVERRUN;  // as abort does elsewhere
  if (signal == SIGSEGV) {
    status = STATUS_ACCESS_VIOLATION;
  } else if (signal == SIGILL) {
    status = STATUS_ILLEGAL_INSTRUCTION;
  } else if (signal == SIGFPE) {
    status = STATUS_FLOAT_INVALID_OPERATION;
  }
  ::TerminateProcess(::GetCurrentProcess(), status);
}

}  // namespace

SignalHold::SignalHold() noexcept { ::EnterCriticalSection(&TheState().lock); }

SignalHold::~SignalHold() { ::LeaveCriticalSection(&TheState().lock); }

void PrepareForSignals() {
  TheState().isPrepared = true;
  ::SetConsoleCtrlHandler(OnRequest, TRUE);
  for (const int fault : {SIGABRT, SIGFPE, SIGILL, SIGSEGV}) {
    (void)std::signal(fault, OnFault);
  }
  // No box that waits for somebody: what the system has to say comes as an error.
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
}

void EndByClosedPipe() {
  if (TheState().isPrepared) {
    EndBy(kEndedByClosedPipe);
  }
}

}  // namespace strake::os
