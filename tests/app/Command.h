// Runs the built command as a process.
#pragma once

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

  // A file instead of what the test reads; empty: closed.
  Command& StandardOutput(const std::string& file);
  Command& Environment(const std::string& assignment);
  Command& Mask(mode_t mask);
  // Run by root it has no more rights to files than their modes give.
  Command& AsOrdinaryUser();
  // A file that is open when it starts, for reading.
  Command& Reading(int descriptor, const std::string& file);
  // The most memory that it may map.
  Command& AddressSpace(unsigned long bytes);

  [[nodiscard]] Outcome Run() const;
  // As on a terminal.
  [[nodiscard]] Outcome RunOnTerminal() const;
  // Standard error alone is a terminal.
  [[nodiscard]] Outcome RunWithErrorsOnTerminal() const;

 private:
  enum class Output { Read, File, Closed };

  [[noreturn]] void Become(int out, int err) const;
  [[nodiscard]] static int Wait(pid_t process);

  std::vector<std::string> fWords;
  std::vector<std::string> fEnvironment;
  Output fOutput = Output::Read;
  std::string fOutputFile;
  mode_t fMask = 022;
  bool fOrdinaryUser = false;
  std::vector<std::pair<int, std::string>> fRead;
  unsigned long fAddressSpace = 0;  // 0: as much as there is
};

Outcome Strake(const std::vector<std::string>& words);
// "strake collect", with the modules of the tests.
Outcome CollectHostile(std::vector<std::string> words);

std::string HostileModule();
std::string RefusingModule();

}  // namespace strake::tests
