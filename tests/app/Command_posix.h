// The command with what only POSIX gives a process.
#pragma once

#include "tests/app/Command.h"

#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace strake::tests {

class PosixCommand : public Command {
 public:
  using Command::Command;
  explicit PosixCommand(const Command& command) : Command(command) {}

  PosixCommand& StandardOutput(const std::string& file);
  PosixCommand& Environment(const std::string& assignment);
  // A pipe that nobody reads.
  PosixCommand& NoReader();
  // Descriptors that are closed when it starts.
  PosixCommand& Closed(std::vector<int> descriptors);
  // A file that is open when it starts, for reading or, created, for writing.
  PosixCommand& Reading(int descriptor, const std::string& file);
  PosixCommand& Writing(int descriptor, const std::string& file);
  // A signal that is ignored when it starts.
  PosixCommand& Ignoring(int signal);
  PosixCommand& Mask(mode_t mask);
  // Run by root it has no more rights to files than their modes give.
  PosixCommand& AsOrdinaryUser();
  // The most memory that it may map.
  PosixCommand& AddressSpace(unsigned long bytes);
  // So many that it may have open.
  PosixCommand& Descriptors(unsigned long count);

  [[nodiscard]] Outcome Run() const;
  // As on a terminal.
  [[nodiscard]] Outcome RunOnTerminal() const;
  // Sends the signal when standard error has said so much.
  [[nodiscard]] Outcome RunUntil(const std::string& errors, int signal) const;
  // Does something to the process then.
  [[nodiscard]] Outcome RunUntil(const std::string& errors,
                                 const std::function<void(pid_t)>& act) const;
  // Standard error alone is a terminal.
  [[nodiscard]] Outcome RunWithErrorsOnTerminal() const;

 private:
  struct OpenFile {
    int descriptor;
    std::string name;
    int flags;
  };

  [[noreturn]] void Become(int out, int err) const;
  void ArrangeDescriptors(int out, int err) const;
  [[nodiscard]] std::vector<OpenFile> OpenFiles() const;
  [[nodiscard]] pid_t Start(int out, int err) const;

  bool fHasReader = true;
  std::vector<int> fClosed;
  std::vector<OpenFile> fOpen;
  std::vector<int> fIgnored;
  mode_t fMask = 022;
  bool fOrdinaryUser = false;
  // 0: as much as there is
  unsigned long fAddressSpace = 0;
  unsigned long fDescriptors = 0;
};

}  // namespace strake::tests
