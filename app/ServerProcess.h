// One of several servers, collected in a process of its own: the module's state
// is a process'.
#pragma once

#include "app/RelayedErrors.h"
#include "os/ChildProcess.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace strake::app {

class ServerProcess {
 public:
  using Clock = os::ChildProcess::Clock;

  struct Plan {
    std::filesystem::path command;  // this one
    std::filesystem::path server;
    std::string version;
    std::vector<std::string> words;  // beside the server
    std::optional<std::chrono::milliseconds> timeout;
  };

  explicit ServerProcess(Plan plan);

  // It may end in that; then, and whenever it fails, standard error is told. False:
  // the system has no room for another process until one of those beside it ended.
  [[nodiscard]] bool Start(bool areOthersRunning);
  // Lets the time that it has be so much later.
  void Postpone(Clock::duration held);

  [[nodiscard]] bool HasEnded() const { return !fLine.empty(); }
  // When it has: its report, or the failure in its place, with the line's end.
  [[nodiscard]] const std::string& Line() const { return fLine; }
  // kExitFailed, or that of a run whose report is there.
  [[nodiscard]] int Status() const { return fStatus; }

  // Waits until one of them, all of which run, has something new, and takes it.
  static void Wait(std::span<ServerProcess* const> running);

 private:
  void Advance();
  void Conclude(const os::ChildEnd& end);
  void Fail(const std::string& text);
  [[nodiscard]] std::string FailureOf(const os::ChildEnd& end);

  Plan fPlan;
  std::optional<os::ChildProcess> fProcess;
  std::optional<Clock::time_point> fDeadline;
  std::string fOutput;
  RelayedErrors fErrors;
  std::string fLine;
  int fStatus;
};

}  // namespace strake::app
