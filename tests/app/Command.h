// Runs the built command as a process.
#pragma once

#include <iosfwd>
#include <string>
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

  // A file that it reads.
  Command& StandardInput(const std::string& file);
  // A file instead of what the test reads.
  Command& StandardOutput(const std::string& file);
  Command& Environment(const std::string& assignment);

  [[nodiscard]] Outcome Run() const;

 protected:
  [[nodiscard]] const std::vector<std::string>& Words() const { return fWords; }
  [[nodiscard]] const std::vector<std::string>& Assignments() const { return fEnvironment; }
  // Empty: none.
  [[nodiscard]] const std::string& InputFile() const { return fInput; }
  [[nodiscard]] const std::string& OutputFile() const { return fOutput; }

 private:
  std::vector<std::string> fWords;
  std::vector<std::string> fEnvironment;
  std::string fInput;
  std::string fOutput;
};

// A description of a server without a service processor.
inline const std::string kNoProcessor = R"({"format": "strake-server/1", "sp": {"kind": "none"}})";

Outcome Strake(const std::vector<std::string>& words);
// "strake collect", with the modules of the tests.
Outcome CollectHostile(std::vector<std::string> words);

// "strake.so", as the system calls a module.
std::string ModuleFile(const std::string& name);
std::string HostileModule();
std::string RefusingModule();
std::string ErraticModule();

}  // namespace strake::tests
