// Listens, as a debugger would, to what this thread tells debuggers. For the
// sources of this folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <windows.h>

namespace strake::os {

class DebugListener {
 public:
  // To what begins with the head, which must outlive this. While another one lives
  // within its life, that one listens instead.
  explicit DebugListener(std::string_view head);
  DebugListener(const DebugListener&) = delete;
  DebugListener& operator=(const DebugListener&) = delete;
  ~DebugListener();

  // The latest, without its head.
  [[nodiscard]] const std::optional<std::string>& Heard() const { return fHeard; }

 private:
  static LONG CALLBACK OnException(EXCEPTION_POINTERS* exception);
  void Hear(std::string_view text) noexcept;

  std::string_view fHead;
  std::optional<std::string> fHeard;
  DWORD fThread;
  DebugListener* fOuter;
  void* fHandler;
};

}  // namespace strake::os
