// Another program that runs beside this one, and what it says.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace strake::os {

// How a child ended.
struct ChildEnd {
  std::optional<int> status;  // none: it did not end by itself
  std::string cause;          // what ended it then: "signal 6 (Aborted)"
};

class ChildProcess {
 public:
  using Clock = std::chrono::steady_clock;

  // What it reads: nothing, or what this process would.
  enum class Input { None, Own };

  // The words stand behind the program's name. A signal that ends this process
  // ends the child before it; where the system can, the child does not outlive
  // this process either when that ends otherwise. Throws std::system_error: it
  // could not be started.
  ChildProcess(const std::filesystem::path& program, const std::vector<std::string>& words,
               Input input);
  ChildProcess(const ChildProcess&) = delete;
  ChildProcess& operator=(const ChildProcess&) = delete;
  // Ends it where it runs; nothing of it is left then.
  ~ChildProcess();

  // What it wrote to standard output and standard error since the last call, as
  // far as Wait has read it.
  [[nodiscard]] std::string TakeOutput();
  [[nodiscard]] std::string TakeErrors();

  // None while it runs. With it, all is read that the child itself wrote.
  [[nodiscard]] const std::optional<ChildEnd>& End() const;

  // Waits until one of them, which have not ended, wrote something or ended, or
  // it is time. Reads a bounded piece of each.
  static void Wait(std::span<ChildProcess* const> children, std::optional<Clock::time_point> until);

 private:
  class State;
  std::unique_ptr<State> fState;
};

}  // namespace strake::os
