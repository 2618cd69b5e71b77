// Runs the built command as a process.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace strake::tests {

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome);

class Command {
 public:
  explicit Command(std::vector<std::string> words) : fWords(std::move(words)) {}

  // A file instead of what the test reads.
  Command& StandardOutput(const std::string& file);
  // A pipe that nobody reads.
  Command& NoReader();
  // Descriptors that are closed when it starts.
  Command& Closed(std::vector<int> descriptors);
  // A file that is open when it starts, for reading or, created, for writing.
  Command& Reading(int descriptor, const std::string& file);
  Command& Writing(int descriptor, const std::string& file);
  // A signal that is ignored when it starts.
  Command& Ignoring(int signal);
  Command& Environment(const std::string& assignment);
  Command& Mask(mode_t mask);
  // Run by root it has no more rights to files than their modes give.
  Command& AsOrdinaryUser();
  // The most memory that it may map.
  Command& AddressSpace(unsigned long bytes);
  // So many that it may have open.
  Command& Descriptors(unsigned long count);

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
  [[nodiscard]] pid_t Start(int out, int err) const;

  std::vector<std::string> fWords;
  std::vector<std::string> fEnvironment;
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

Outcome Strake(const std::vector<std::string>& words);
// "strake collect", with the modules of the tests.
Outcome CollectHostile(std::vector<std::string> words);

std::string HostileModule();
std::string RefusingModule();
std::string ErraticModule();

}  // namespace strake::tests
