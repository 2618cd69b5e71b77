#include "os/DebugListener_windows.h"

#include <new>
#include <utility>

namespace strake::os {
namespace {

struct Current {
  DebugListener* listener = nullptr;
};

DebugListener*& TheListener() {
  static Current current;
  return current.listener;
}

}  // namespace

DebugListener::DebugListener(std::string_view head)
    : fHead(head),
      fThread(::GetCurrentThreadId()),
      fOuter(std::exchange(TheListener(), this)),
      fHandler(::AddVectoredExceptionHandler(1, OnException)) {}

DebugListener::~DebugListener() {
  ::RemoveVectoredExceptionHandler(fHandler);
  TheListener() = fOuter;
}

// What is told to debuggers arrives as an exception of its own kind: the length,
// with the zero behind it, and where the text lies.
LONG CALLBACK DebugListener::OnException(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  DebugListener* const listener = TheListener();
  if (listener != nullptr && record.ExceptionCode == DBG_PRINTEXCEPTION_C &&
      record.NumberParameters >= 2 && record.ExceptionInformation[0] > 0 &&
      ::GetCurrentThreadId() == listener->fThread) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system has it as a number
    listener->Hear({reinterpret_cast<const char*>(record.ExceptionInformation[1]),
                    record.ExceptionInformation[0] - 1});
  }
  return EXCEPTION_CONTINUE_SEARCH;
}

void DebugListener::Hear(std::string_view text) noexcept {
  if (!text.starts_with(fHead)) {
    return;
  }
  try {
    fHeard = text.substr(fHead.size());
  } catch (const std::bad_alloc&) {
    fHeard.emplace();  // it was said; what, there is no room for
  }
}

}  // namespace strake::os
