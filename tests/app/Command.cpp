#include "tests/app/Command.h"

#include "tests/support/Places.h"

#include <ostream>

namespace strake::tests {
namespace {

std::string TestModule(const std::string& name) {
  return BuildFolder() + "/test-modules/" + ModuleFile(name);
}

}  // namespace

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
  return stream << "status " << outcome.status << "\n--- out\n"
                << outcome.out << "--- err\n"
                << outcome.err;
}

Command& Command::StandardInput(const std::string& file) {
  fInput = file;
  return *this;
}

Command& Command::StandardOutput(const std::string& file) {
  fOutput = file;
  return *this;
}

Command& Command::Environment(const std::string& assignment) {
  fEnvironment.push_back(assignment);
  return *this;
}

Outcome Strake(const std::vector<std::string>& words) { return Command(words).Run(); }

Outcome CollectHostile(std::vector<std::string> words) {
  words.insert(words.begin(), {"collect", "--plugin", HostileModule()});
  return Strake(words);
}

std::string ModuleFile(const std::string& name) { return name + STRAKE_MODULE_SUFFIX; }
std::string HostileModule() { return TestModule("hostile"); }
std::string RefusingModule() { return TestModule("refusing"); }
std::string ErraticModule() { return TestModule("erratic"); }

}  // namespace strake::tests
